#include "check/SealFindings.h"

#include "check/Answer.h"

Findings sealFindings(const QVariantList &answer)
{
    const QString state = answer.value(0).toString();
    if (state == QLatin1String("i18n_wm_false") || state == QLatin1String("i18n_wm_true"))
        return {};
    return { error("seal-status",
        "the seal's state is %1, which counts as closed; answer [\"i18n_wm_false\"] while it is "
        "open, otherwise [\"i18n_wm_true\"]",
        shownValue(answer)) };
}
