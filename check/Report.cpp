#include "check/Report.h"

#include "locale/CTranslationHandler.h"
#include "menu/RepeatedScreen.h"
#include "render/ForeignText.h"

namespace {

QStringList ignoredBy(const QScriptValue &definition)
{
    return definition.property(QStringLiteral("checkIgnore")).toString().split(QLatin1Char(' '));
}

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
    const QStringList ignored = ignoredBy(item.definition);
    for (const Finding &finding : findings) {
        if (!ignored.contains(finding.name)
            && reported.emplace(item.definition.objectId(), instance, finding.text).second)
            reportLines.push_back(reportLine(wayTo(item, instance), finding));
    }
}

void Report::add(const QString &place, const Findings &findings)
{
    const QStringList ignored = ignoredBy(menu.global);
    for (const Finding &finding : findings) {
        if (!ignored.contains(finding.name))
            reportLines.push_back(reportLine(place, finding));
    }
}

QString Report::wayTo(const TreeViewItem &item, int instance) const
{
    const PropertyNames &names = menu.handler.names();
    QString css;
    QStringList labels;
    for (const TreeViewItem *level = &item; level; level = level->parentItem) {
        QString label = translate(menu.handler.labelKey(*level));
        if (instance >= 0 && isRepeatedScreen(level->referringEntry, names))
            label += QLatin1Char(' ') + QString::number(level->position + 1);
        if (level->parentItem || labels.isEmpty())
            labels.prepend(label);
        if (css.isEmpty())
            css = level->definition.property(names.css).toString();
    }
    return css + QLatin1String(": ") + labels.join(QLatin1String(" > "));
}
