#include "demo/FieldInterfaces.h"

#include <cmath>

namespace {

// Up and down between 0 and `amplitude`; later channels move faster, the first answer stands still.
int driftSteps(int answers, int channel, int amplitude)
{
    if (amplitude <= 0)
        return 0;
    const int phase = answers % (2 * amplitude) * (channel + 1) % (2 * amplitude);
    return phase <= amplitude ? phase : 2 * amplitude - phase;
}

void driftNumber(Json &value, int steps)
{
    if (value.IsInt())
        value.SetInt(value.GetInt() + steps);
    else if (value.IsDouble())
        value.SetDouble(std::round(value.GetDouble() * 10 + steps) / 10);
}

void driftChannels(Json &interface, const Json *drift, int answers)
{
    for (int index = 0; index < int(interface.Size()); ++index) {
        const Json *const amplitude = element(drift, index);
        if (!amplitude || !amplitude->IsInt())
            continue;
        Json &value = *element(&interface, index);
        if (!value.IsArray()) {
            driftNumber(value, driftSteps(answers, index, amplitude->GetInt()));
            continue;
        }
        for (int channel = 0; channel < int(value.Size()); ++channel) {
            driftNumber(
                *element(&value, channel), driftSteps(answers, channel, amplitude->GetInt()));
        }
    }
}

Json *interfaceWithQuery(JsonDocument &state, const QByteArray &query)
{
    Json *const interfaces = member(&state, "interfaces");
    if (!interfaces || !interfaces->IsObject())
        return nullptr;
    for (auto &entry : interfaces->GetObject()) {
        const Json *const ownQuery = member(&entry.value, "query");
        if (ownQuery && ownQuery->IsString() && query == ownQuery->GetString())
            return &entry.value;
    }
    return nullptr;
}

int count(const Json *value)
{
    return value && value->IsInt() ? value->GetInt() : 0;
}

} // namespace

bool interfaceAnswer(
    JsonDocument &state, const QByteArray &query, const QByteArray &number, JsonDocument &answer)
{
    Json *const interface = interfaceWithQuery(state, query);
    const Json *stored = member(interface, "answer");
    if (!stored)
        return false;
    Json *const answers = member(interface, "answers");
    const Json *const drift = member(interface, "drift");
    const Json *const enabled = member(interface, "enabled");

    answer.SetArray();
    if (stored->IsObject()) {
        const Json *const numbered = member(stored, number);
        if (numbered && numbered->IsArray()) {
            answer.CopyFrom(*numbered, answer.GetAllocator());
            driftChannels(answer, drift, count(answers));
        }
    } else if (stored->IsArray()) {
        answer.CopyFrom(*stored, answer.GetAllocator());
        for (Json &entry : answer.GetArray()) {
            if (entry.IsArray())
                driftChannels(entry, drift, count(answers));
        }
    }
    if (answers && enabled && enabled->IsTrue())
        answers->SetInt(count(answers) + 1);
    return true;
}

bool enableInterface(JsonDocument &state, const Json &request)
{
    const Json *const name = element(&request, 0);
    const Json *const enabled = element(&request, 1);
    if (!name || !name->IsString() || !enabled || !enabled->IsBool())
        return false;
    Json *const stored = member(member(member(&state, "interfaces"), name->GetString()), "enabled");
    if (stored)
        stored->SetBool(enabled->GetBool());
    return stored;
}
