#include "check/DeviceFindings.h"
#include "locale/CTranslationHandler.h"

#include <cmath>

namespace {

bool isCount(const QVariant &value)
{
    const double number = value.toDouble();
    return isNumber(value) && number >= 0 && number <= 999 && std::trunc(number) == number;
}

} // namespace

Findings sealFindings(const QVariantList &answer)
{
    const QString state = answer.value(0).toString();
    if (state == QLatin1String("i18n_wm_false") || state == QLatin1String("i18n_wm_true"))
        return {};
    return { error("seal-status",
        QStringLiteral("the seal's state is %1, which counts as closed; answer [\"i18n_wm_false\"] "
                       "while it is open, otherwise [\"i18n_wm_true\"]")
            .arg(shownValue(answer))) };
}

Findings countFindings(const QVariantList &answer, int place, const QString &field)
{
    if (place < answer.size() && isCount(answer.at(place)))
        return {};
    const QString found =
        place < answer.size() ? shownValue(answer.at(place)) : QStringLiteral("missing");
    return { error("count-value",
        QStringLiteral(
            "the number \"%1\" is %2, value %3 of the answer; answer a whole number from 0 "
            "to 999 there")
            .arg(field, found)
            .arg(place + 1)) };
}

Findings lengthFindings(
    const TreeViewItemHandler &handler, const TreeViewItem &screen, const QVariantList &answer)
{
    int entries = 0;
    QString firstEmpty;
    for (const auto &child : screen.children) {
        if (handler.isValueBearing(*child) && entries++ == answer.size())
            firstEmpty = translate(handler.labelKey(*child));
    }
    if (entries > answer.size()) {
        return { error("few-values",
            QStringLiteral(
                "the answer has %1 of %2 values: from \"%3\" on the entries stay empty and "
                "are written as null; answer a value for each but separators and buttons")
                .arg(answer.size())
                .arg(entries)
                .arg(firstEmpty)) };
    }
    if (entries < answer.size()) {
        return { error("many-values",
            QStringLiteral(
                "the answer has %1 values instead of %2, so those after the surplus one are "
                "shown and written at the wrong entries; answer a value for each but "
                "separators and buttons")
                .arg(answer.size())
                .arg(entries)) };
    }
    return {};
}
