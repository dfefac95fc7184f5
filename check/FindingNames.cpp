#include "check/FindingNames.h"

const QStringList &findingNames()
{
    // In the order of the manual page.
    static const QStringList names = QStringLiteral(
        "script no-version not-utf8 translation-table "
        "dangling-reference no-template self-reference unreached duplicate-css "
        "list-screen no-count count-place entry-type entry-screens "
        "misspelled-attribute unknown-input-type unknown-type unknown-finding "
        "interface-type interface-css access-level remote "
        "no-values value-count equal-values empty-value integer-list wide-option "
        "slider-number slider slider-step "
        "no-validation no-range range dead-rule narrow-rule "
        "no-read no-write dead-read hidden-read quotes empty-words same-words exchanged-words "
        "no-label untranslated wide-label unshowable "
        "no-tool hanging-call slow-call no-array tool-end write-call few-values many-values "
        "list-value boolean-value slider-value edit-value count-value seal-status no-tool-version "
        "interface-answer not-written refused-write changed-value changed-screen")
                                         .split(QLatin1Char(' '));
    return names;
}

QStringList allowedFindings(const QScriptValue &definition)
{
    return definition.property(QStringLiteral("checkIgnore"))
        .toString()
        .split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

Findings nameFindings(const QScriptValue &definition)
{
    Findings findings;
    for (const QString &name : allowedFindings(definition)) {
        if (!findingNames().contains(name)) {
            findings << warning("unknown-finding",
                "\"checkIgnore\" names \"%1\", which is no finding; write the names as they are in "
                "brackets, separated by blanks",
                name);
        }
    }
    return findings;
}
