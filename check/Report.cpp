#include "check/Report.h"

#include "check/Entries.h"
#include "check/FindingNames.h"
#include "locale/CTranslationHandler.h"
#include "menu/RepeatedScreen.h"
#include "render/ForeignText.h"

namespace {

QString reportLine(const QString &place, const Finding &finding)
{
    const QString severity =
        finding.severity == Severity::Error ? QStringLiteral("error") : QStringLiteral("warning");
    return printable(
        QStringLiteral("%1: %2: %3 [%4]").arg(severity, place, finding.text, finding.name));
}

} // namespace

void Report::add(const TreeViewItem &item, const Findings &findings, int instance)
{
    const QStringList allowed = allowedFindings(item.definition);
    for (const Finding &finding : findings) {
        if (isReported(finding, allowed)
            && reported.emplace(item.definition.objectId(), instance, finding.text).second)
            reportLines.push_back(reportLine(wayTo(item, instance), finding));
    }
}

void Report::add(const QString &place, const Findings &findings)
{
    const QStringList allowed = allowedFindings(menu.global);
    for (const Finding &finding : findings) {
        if (isReported(finding, allowed))
            reportLines.push_back(reportLine(place, finding));
    }
}

bool Report::isReported(const Finding &finding, const QStringList &allowed) const
{
    const bool followsFromTable = !menu.hasTable && finding.name == QLatin1String("untranslated");
    return !followsFromTable && !allowed.contains(finding.name);
}

QString Report::wayTo(const TreeViewItem &item, int instance)
{
    QString screen;
    QStringList labels;
    for (const TreeViewItem *level = &item; level; level = level->parentItem) {
        if (level->parentItem || labels.isEmpty())
            labels.prepend(labelOf(*level, instance));
        const QScriptValue css = level->definition.property(menu.handler.names().css);
        if (screen.isEmpty())
            screen = css.toString();
    }
    return (screen.isEmpty() ? QString() : screen + QLatin1String(": "))
        + labels.join(QLatin1String(" > "));
}

QString Report::labelOf(const TreeViewItem &item, int instance)
{
    const PropertyNames &names = menu.handler.names();
    QString label = translate(menu.handler.labelKey(item));
    if (instance >= 0 && isRepeatedScreen(item.referringEntry, names))
        label += QLatin1Char(' ') + QString::number(item.position + 1);
    return label.trimmed().isEmpty() ? entryText(item) : label;
}

// For what has neither a label nor a css: its place among the entries, from 1.
QString Report::entryText(const TreeViewItem &item)
{
    const TreeViewItem *const parent = item.parentItem;
    const PropertyNames &names = menu.handler.names();
    const QScriptValue entries =
        parent ? parent->definition.property(names.screens) : menu.settings;
    if (listed != entries.objectId()) {
        listed = entries.objectId();
        places.clear();
        int place = 0;
        for (const QScriptValue &entry : entriesOf(entries, names)) {
            ++place;
            if (!places.contains(entry.objectId()))
                places.insert(entry.objectId(), place);
        }
    }
    const QScriptValue &wanted =
        item.referringEntry.isValid() ? item.referringEntry : item.definition;
    const QString list = parent ? parent->definition.property(names.css).toString()
                                : QStringLiteral("Settings.settings");
    return QStringLiteral("entry %1").arg(places.value(wanted.objectId()))
        + (list.isEmpty() ? QString() : QStringLiteral(" of ") + list);
}
