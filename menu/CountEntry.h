// The entries of the menu definition that hold the numbers of compartments and meters.
#pragma once

#include "menu/PropertyNames.h"

#include <QScriptValue>

struct CountEntry {
    const char *screen; ///< css of its screen
    const char *field; ///< its "i18n"
};

constexpr CountEntry compartmentCount = { "btnParameterTruckSetup", "truck_setup_compartments" };
constexpr CountEntry meterCount = { "btnParameterInterfacesCanFasWm", "interfaces_can_fas_wm_fpi" };

/// The place of the entry among all entries of `screen`, from 0; -1 when the screen lacks it. The
/// backend's answer is expected to have the number at the same place.
int positionOf(const CountEntry &entry, const QScriptValue &screen, const PropertyNames &names);
