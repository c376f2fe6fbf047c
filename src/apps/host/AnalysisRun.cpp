#include "apps/host/AnalysisRun.h"

#include <QEventLoop>
#include <cmath>
#include <new>
#include <thread>

#include "analysis/document_analysis.h"
#include "apps/host/DialogRunner.h"
#include "dialogs/frame/CProgressDlg.h"
#include "dialogs/frame/Prompter.h"
#include "model/response_spectrum_manager.h"

namespace {

// The host finds modes when the model has mass to move: a material with a density, or
// masses the load cases add. Twelve are enough for the example's response spectrum.
constexpr int kHostModes = 12;

bool HasMass(const model::ModelDocument& doc) {
  for (const fmMat& m : doc.materials)
    if (m.density > 0) return true;
  for (const fmCaseLoad& c : doc.caseLoads)
    if (c.massFactor != 0 || !c.nodalMasses.empty()) return true;
  return false;
}

}  // namespace

bool RunAnalysisAndOfferResults(HostModel& model, analysis::MassModel masses, QWidget* parent) {
  analysis::AnalysisRequest request;
  request.modes = HasMass(model.doc) ? kHostModes : 0;
  request.masses = masses;
  if (request.modes > 0 && model.doc.spectrumAnalysis.enabled) {
    CResponseSpectrumManager& spectra = CResponseSpectrumManager::Instance();
    if (!spectra.LoadFile()) {
      GetPrompter().Message(parent, spectra.LastError(), MessageIcon::Error);
      return false;
    }
    request.spectra = spectra.GetSpectra();
  }

  model::ModelDocument work = model.doc;
  CProgressDlg progress;
  progress.Create(parent);
  progress.setWindowModality(Qt::ApplicationModal);
  progress.SendMessage(CProgressDlg::WM_PROGRESS_UPDATE, 0);
  progress.SendMessage(CProgressDlg::WM_PROGRESS_SHOW);

  QEventLoop loop;
  analysis::AnalysisSummary summary;
  std::string failure;
  std::thread worker([&] {
    try {
      summary = analysis::AnalyseDocument(work, request, [&progress](const std::string&, double fraction) {
        progress.PostMessage(CProgressDlg::WM_PROGRESS_UPDATE, static_cast<WPARAM>(std::lround(100 * fraction)));
      });
    } catch (const std::bad_alloc&) {
      failure = "Not enough memory to analyse the model.";
    } catch (const std::exception& e) {
      failure = e.what();
    }
    QMetaObject::invokeMethod(&loop, [&loop] { loop.quit(); }, Qt::QueuedConnection);
  });
  loop.exec();
  worker.join();
  progress.SendMessage(CProgressDlg::WM_PROGRESS_HIDE);

  if (!failure.empty()) {
    GetPrompter().Message(parent, failure, MessageIcon::Error);
    return false;
  }
  model.doc.results = std::move(work.results);
  model.modified = true;
  // The static line, and the modal one that says which masses the modes had.
  model.status = summary.lines.empty() ? "Analysed" : summary.lines.front();
  for (const std::string& line : summary.lines)
    if (line.starts_with("Modal: ")) model.status += "; " + line;
  if (GetPrompter().Question(parent, kOpenResultsQuestion)) RunBoundDialog("CResultsDlg", model, parent);
  return true;
}
