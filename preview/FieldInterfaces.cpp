#include "preview/FieldInterfaces.h"

#include "json/Values.h"

#include <cmath>
#include <limits>

namespace {

// Up and down between 0 and `amplitude`, later channels faster; 0 in the first answer.
qint64 driftSteps(qint64 answers, qint64 channel, qint64 amplitude)
{
    if (amplitude <= 0 || answers <= 0)
        return 0;
    const qint64 phase = answers % (2 * amplitude) * (channel + 1) % (2 * amplitude);
    return phase <= amplitude ? phase : 2 * amplitude - phase;
}

// A channel that measures 0 has no sensor and stays at 0.
void driftNumber(QVariant &value, qint64 steps)
{
    constexpr qlonglong highest = std::numeric_limits<qlonglong>::max();
    if (value.type() == QVariant::LongLong && value != 0)
        value = qMin(value.toLongLong(), highest - steps) + steps;
    else if (value.type() == QVariant::Double)
        value = std::round(value.toDouble() * 10 + double(steps)) / 10;
}

QVariantList drifted(QVariantList values, const FieldInterface &interface)
{
    for (int index = 0; index < values.size(); ++index) {
        QVariant &value = values[index];
        const int amplitude = integerOf(interface.drift.value(index));
        if (value.type() != QVariant::List) {
            driftNumber(value, driftSteps(interface.answers, index, amplitude));
            continue;
        }
        QVariantList channels = value.toList();
        for (int channel = 0; channel < channels.size(); ++channel)
            driftNumber(channels[channel], driftSteps(interface.answers, channel, amplitude));
        value = channels;
    }
    return values;
}

QVariantList currentAnswer(const FieldInterface &interface, const QString &number)
{
    if (interface.answer.type() == QVariant::Map)
        return drifted(interface.answer.toMap().value(number).toList(), interface);
    QVariantList answer = interface.answer.toList();
    for (QVariant &entry : answer) {
        if (entry.type() == QVariant::List)
            entry = drifted(entry.toList(), interface);
    }
    return answer;
}

} // namespace

QVariant interfaceAnswer(DeviceState &state, const QString &query, const QString &number)
{
    for (auto &[name, interface] : state.interfaces) {
        if (interface.query != query)
            continue;
        const QVariantList answer = currentAnswer(interface, number);
        interface.answers += interface.enabled;
        return answer;
    }
    return {};
}

bool switchInterface(DeviceState &state, const QVariantList &request)
{
    const auto interface = state.interfaces.find(request.value(0).toString());
    const QVariant isOn = request.value(1);
    if (interface == state.interfaces.end() || isOn.type() != QVariant::Bool)
        return false;
    interface->second.enabled = isOn.toBool();
    return true;
}
