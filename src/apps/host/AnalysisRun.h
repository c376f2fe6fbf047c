#pragma once
#include "analysis/model.h"
#include "apps/host/HostModel.h"

class QWidget;

// "Analysis > Run" of the demo host. The engine works on a copy of the document on a worker
// thread that the host starts (the dialogs start none); the progress window follows it
// through its update, show and hide messages and keeps the rest of the host from input.
// The results replace the model's only when the whole analysis succeeded; a model the
// engine refuses is explained in a message and left as it was. Then the results dialog is
// offered. The modes take the given masses. Returns whether the analysis succeeded.
bool RunAnalysisAndOfferResults(HostModel& model, analysis::MassModel masses, QWidget* parent);

// The question that offers the results dialog.
inline constexpr const char* kOpenResultsQuestion = "The analysis is done. Open the results?";
