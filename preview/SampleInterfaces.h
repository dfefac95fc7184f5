// Field interfaces for a simulated device.
#pragma once

#include <QVariant>

/// The six interfaces by their names: the query for each, how far its values drift, and its answer.
/// One module is missing, one is faulty, and some have fewer channels than the screen.
QVariant sampleInterfaces();
