#pragma once
#include "tools/fm_unit.h"

class QSettings;

// What the demo host keeps in its settings besides the preferences: the units a new model
// starts with, saved when the user ticks "Save as defaults for future use".
fmUnit DefaultUnits(QSettings& settings);
void StoreDefaultUnits(const fmUnit& units, QSettings& settings);
