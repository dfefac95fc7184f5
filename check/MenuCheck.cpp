#include "check/MenuCheck.h"

#include "check/Findings.h"
#include "locale/CTranslationHandler.h"
#include "render/ForeignText.h"

#include <QSet>

namespace {

enum class Presence { Shown, HiddenByOmission, HiddenOnPurpose };

QString problemLine(const QString &place, const Finding &finding)
{
    const QString severity =
        finding.severity == Severity::Error ? QStringLiteral("error") : QStringLiteral("warning");
    return printable(
        QStringLiteral("%1: %2: %3 [%4]").arg(severity, place, finding.text, finding.name));
}

class MenuCheck {
public:
    explicit MenuCheck(const LoadedMenu &menu)
        : menu(menu)
        , handler(menu.handler)
        , names(handler.names())
    {
    }

    QStringList run()
    {
        visit(*menu.root, Presence::Shown);
        for (int screen = 0; screen < menu.screens.size(); ++screen) {
            if (menu.screens.at(screen).isObject())
                checkPresence(menu.screens.at(screen), screen);
        }
        return lines;
    }

private:
    void visit(const TreeViewItem &item, Presence presence)
    {
        if (presence == Presence::Shown)
            presence = presenceOf(item);
        reached.insert(item.definition.objectId());
        if (presence != Presence::HiddenByOmission)
            decided.insert(item.definition.objectId());

        report(item, referenceFindings(menu, item.definition));
        report(item, selfReferenceFindings(menu, item));
        report(item, wordFindings(handler, item));
        if (presence == Presence::Shown) {
            report(item, bindingFindings(handler, item));
            report(item, valueFindings(handler, item));
            if (item.parentItem)
                report(item, textFindings(handler, item));
        }
        for (const auto &child : item.children)
            visit(*child, presence);
    }

    Presence presenceOf(const TreeViewItem &item) const
    {
        if (!item.parentItem || handler.isVisible(item))
            return Presence::Shown;
        const QScriptValue reference = item.referringEntry.property(names.remote);
        const bool isMeant = handler.isExcluded(item) || reference.isValid()
            || item.definition.property(names.remote).isValid();
        return isMeant ? Presence::HiddenOnPurpose : Presence::HiddenByOmission;
    }

    void checkPresence(const QScriptValue &definition, int screen)
    {
        const qint64 id = definition.objectId();
        const TreeViewItem item(definition, {}, nullptr, -1, 0);
        if (!reached.contains(id)) {
            report(item, { unreachedFinding(menu, screen) });
            report(item, referenceFindings(menu, definition));
        } else if (!decided.contains(id) && handler.readBinding(item)) {
            report(item,
                { warning("hidden-read",
                    QStringLiteral(
                        "its \"ajax-read\" is never used, as no reference shows it; give "
                        "one \"remote\" 1, or the screen \"remote\" 0")) });
        }
    }

    // What several ways lead to is reported once.
    void report(const TreeViewItem &item, const Findings &findings)
    {
        const QStringList ignored = item.definition.property(QStringLiteral("checkIgnore"))
                                        .toString()
                                        .split(QLatin1Char(' '));
        for (const Finding &finding : findings) {
            const auto key = qMakePair(item.definition.objectId(), finding.text);
            if (ignored.contains(finding.name) || reported.contains(key))
                continue;
            reported.insert(key);
            lines.push_back(problemLine(placeOf(item), finding));
        }
    }

    // The css of the screen and the labels that lead to the item.
    QString placeOf(const TreeViewItem &item) const
    {
        QString css;
        QStringList labels;
        for (const TreeViewItem *level = &item; level; level = level->parentItem) {
            if (level->parentItem || labels.isEmpty())
                labels.prepend(translate(handler.labelKey(*level)));
            if (css.isEmpty())
                css = level->definition.property(names.css).toString();
        }
        return css + QLatin1String(": ") + labels.join(QLatin1String(" > "));
    }

    const LoadedMenu &menu;
    const TreeViewItemHandler &handler;
    const PropertyNames &names;
    QSet<qint64> reached; ///< definitions that are in the tree
    QSet<qint64> decided; ///< those of them that are shown, or hidden by a word of the definition
    QSet<QPair<qint64, QString>> reported;
    QStringList lines;
};

} // namespace

QStringList menuProblems(LoadedMenu &menu)
{
    QStringList lines;
    for (const Finding &finding : scriptFindings(menu))
        lines.push_back(problemLine(menu.paths.settingsScript, finding));
    if (!menu.settings.isError() && menu.settings.property(0).isObject())
        lines += MenuCheck(menu).run();
    return lines;
}
