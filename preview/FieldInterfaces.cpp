#include "preview/FieldInterfaces.h"

#include "preview/DeviceState.h"

#include <cmath>

namespace {

// Up and down between 0 and `amplitude`, later channels faster; 0 in the first answer.
int driftSteps(int answers, int channel, int amplitude)
{
    if (amplitude <= 0)
        return 0;
    const int phase = answers % (2 * amplitude) * (channel + 1) % (2 * amplitude);
    return phase <= amplitude ? phase : 2 * amplitude - phase;
}

// A channel that measures 0 has no sensor and stays there.
void driftNumber(QVariant &value, int steps)
{
    if (value.type() == QVariant::LongLong && value != 0)
        value = value.toLongLong() + steps;
    else if (value.type() == QVariant::Double)
        value = std::round(value.toDouble() * 10 + steps) / 10;
}

QVariantList drifted(QVariantList interface, const QVariantList &amplitudes, int answers)
{
    for (int index = 0; index < interface.size(); ++index) {
        QVariant &value = interface[index];
        const int amplitude = amplitudes.value(index).toInt();
        if (value.type() != QVariant::List) {
            driftNumber(value, driftSteps(answers, index, amplitude));
            continue;
        }
        QVariantList channels = value.toList();
        for (int channel = 0; channel < channels.size(); ++channel)
            driftNumber(channels[channel], driftSteps(answers, channel, amplitude));
        value = channels;
    }
    return interface;
}

QString interfaceWithQuery(const QVariantMap &interfaces, const QString &query)
{
    for (auto entry = interfaces.cbegin(); entry != interfaces.cend(); ++entry) {
        if (valueAt(entry.value(), { QStringLiteral("query") }) == query)
            return entry.key();
    }
    return {};
}

} // namespace

QVariant interfaceAnswer(QVariant &state, const QString &query, const QString &number)
{
    const QVariantMap interfaces = valueAt(state, { QStringLiteral("interfaces") }).toMap();
    const QString name = interfaceWithQuery(interfaces, query);
    if (name.isEmpty())
        return {};
    const QVariantMap interface = interfaces.value(name).toMap();
    const QVariant stored = interface.value(QStringLiteral("answer"));
    const QVariantList amplitudes = interface.value(QStringLiteral("drift")).toList();
    const int answers = interface.value(QStringLiteral("answers")).toInt();

    QVariantList answer = stored.toList();
    if (stored.type() == QVariant::Map)
        answer = drifted(stored.toMap().value(number).toList(), amplitudes, answers);
    for (QVariant &entry : answer) {
        if (stored.type() == QVariant::List && entry.type() == QVariant::List)
            entry = drifted(entry.toList(), amplitudes, answers);
    }
    if (interface.value(QStringLiteral("enabled")).toBool()) {
        setValueAt(
            state, { QStringLiteral("interfaces"), name, QStringLiteral("answers") }, answers + 1);
    }
    return answer;
}

bool enableInterface(QVariant &state, const QVariantList &request)
{
    const QVariantList path { QStringLiteral("interfaces"), request.value(0).toString(),
        QStringLiteral("enabled") };
    if (request.value(1).type() != QVariant::Bool || !valueAt(state, path).isValid())
        return false;
    setValueAt(state, path, request.value(1));
    return true;
}
