#include "check/SliderFindings.h"

#include "check/Answer.h"
#include "check/Numbers.h"

namespace {

Findings numberFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const PropertyNames &names = handler.names();
    Findings findings;
    for (const QScriptString &name : { names.minimum, names.maximum, names.step }) {
        const QScriptValue number = item.definition.property(name);
        if (!number.isValid()) {
            findings << error("slider-number",
                "without \"%1\" the slider takes 0 for it; add a whole number", name.toString());
        } else if (!isNumber(number)) {
            findings << error("slider-number",
                "its \"%1\" is \"%2\" and counts as 0; write a whole number", name.toString(),
                number.toString());
        } else if (!isWhole(number.toNumber())) {
            findings << warning("slider-number",
                "its \"%1\" %2 is cut to a whole number; write one, in a smaller unit if needed",
                name.toString(), number.toString());
        }
    }
    return findings;
}

} // namespace

Findings sliderFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const Findings findings = numberFindings(handler, item);
    if (!findings.isEmpty())
        return findings;
    const int lowest = handler.minimum(item);
    const int highest = handler.maximum(item);
    const int step = handler.step(item);
    if (highest < lowest || step <= 0) {
        return { error("slider",
            "a slider from %1 to %2 by %3 cannot move; correct \"min\", \"max\" or \"step\"",
            lowest, highest, step) };
    }
    const qint64 remainder = (qint64(highest) - lowest) % step;
    if (remainder == 0)
        return {};
    return { warning("slider-step",
        "steps of %1 from %2 lead to %3, not to \"max\" %4; correct one of them", step, lowest,
        highest - remainder, highest) };
}

Findings sliderValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const double value = item.value.toDouble();
    if (isNumber(item.value) && handler.minimum(item) <= value && value <= handler.maximum(item))
        return {};
    return { error("slider-value",
        "%1 is no number from %2 to %3; correct the value, \"min\" or \"max\"",
        shownValue(item.value), handler.minimum(item), handler.maximum(item)) };
}
