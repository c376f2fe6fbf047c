#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "analysis/document_analysis.h"
#include "apps/cli/cli.h"
#include "model/response_spectrum_manager.h"
#include "tools/atomic_file.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace cli {

namespace {

struct AnalyzeArgs {
  std::string model, out, modes = "0", stations = "11", mass = "lumped";
};

int Analyze(const AnalyzeArgs& a, std::ostream& out, std::ostream& err) {
  const auto modes = tools::ParseInt32(a.modes);
  if (!modes || *modes < 0 || *modes > 1000) {
    err << "norvane-cli: --modes must be a whole number from 0 to 1000, not \"" << a.modes << "\"\n";
    return kUsage;
  }
  const auto stations = tools::ParseInt32(a.stations);
  if (!stations || *stations < 2 || *stations > 101) {
    err << "norvane-cli: --stations must be a whole number from 2 to 101, not \"" << a.stations << "\"\n";
    return kUsage;
  }
  std::optional<analysis::MassModel> masses;
  for (analysis::MassModel m : {analysis::MassModel::Lumped, analysis::MassModel::Consistent})
    if (a.mass == analysis::MassModelName(m)) masses = m;
  if (!masses) {
    err << "norvane-cli: --mass must be lumped or consistent, not \"" << a.mass << "\"\n";
    return kUsage;
  }
  model::ModelDocument doc;
  try {
    doc = model::LoadModelDocument(a.model);
  } catch (const model::DocumentLoadError& e) {
    err << "norvane-cli: " << e.what() << "\n";
    return kRefused;
  }
  analysis::AnalysisRequest request;
  request.modes = *modes;
  request.memberStations = *stations;
  request.masses = *masses;
  if (request.modes > 0 && doc.spectrumAnalysis.enabled) {
    CResponseSpectrumManager& spectra = CResponseSpectrumManager::Instance();
    if (!spectra.LoadFile()) {
      err << "norvane-cli: " << spectra.LastError() << "\n";
      return kRefused;
    }
    request.spectra = spectra.GetSpectra();
  }
  analysis::AnalysisSummary summary;
  try {
    summary = analysis::AnalyseDocument(doc, request, [&err](const std::string& stage, double fraction) {
      err << tools::Format("analyze: %3.0f%% %s\n", 100 * fraction, stage.c_str());
      err.flush();
    });
  } catch (const analysis::AnalysisError& e) {
    err << "norvane-cli: " << e.what() << "\n";
    return kRefused;
  }
  for (const std::string& line : summary.lines) out << line << "\n";
  if (a.out.empty()) {
    err << "norvane-cli: results not written (give -o OUT to save them)\n";
  } else {
    try {
      model::SaveModelDocument(doc, a.out);
    } catch (const model::DocumentTooLargeError& e) {
      // Member stations take most of the room in a large model's results.
      err << "norvane-cli: " << e.what() << " Fewer --stations (now " << *stations << ") make the results smaller.\n";
      return kRefused;
    }
    out << "Written to " << a.out << "\n";
  }
  return kOk;
}

}  // namespace

void AddAnalyzeCommand(Program& program) {
  auto a = std::make_shared<AnalyzeArgs>();
  CLI::App* analyze = program.Add(program.root(), "analyze",
                                  "linear static analysis of every load case and combination, optionally the modes "
                                  "and the response spectrum; the results go into the model's results section",
                                  [a](Io io) { return Analyze(*a, io.out, io.err); });
  analyze->add_option("MODEL", a->model, "the model document")->required();
  analyze->add_option("-o", a->out, "write the model with its results to OUT")->type_name("OUT");
  analyze->add_option("--modes", a->modes, "the number of modes to find (0: none); with the model's response "
                                           "spectrum settings enabled, the spectrum analysis runs on them")
      ->type_name("N");
  analyze->add_option("--mass", a->mass, "the elements' masses for the modes: lumped at the nodes (the default) or "
                                         "consistent with their shapes")
      ->type_name("lumped|consistent");
  analyze->add_option("--stations", a->stations, "points along each member at which its forces and deflections are "
                                                 "written, ends included (11 when omitted)")
      ->type_name("N");
}

}  // namespace cli
