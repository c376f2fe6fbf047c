#pragma once
#include "analysis/model.h"
#include "tools/fm_unit.h"

class QSettings;

// What the demo host keeps in its settings besides the preferences: the units a new model
// starts with, saved when the user ticks "Save as defaults for future use".
fmUnit DefaultUnits(QSettings& settings);
void StoreDefaultUnits(const fmUnit& units, QSettings& settings);

// The masses "Analysis > Run" gives the modes, as last chosen in the Analysis menu (lumped
// until then, or when the setting is not one of the two names).
analysis::MassModel AnalysisMasses(QSettings& settings);
void StoreAnalysisMasses(analysis::MassModel masses, QSettings& settings);
