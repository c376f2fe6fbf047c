#pragma once
#include <string>
#include <vector>

#include "analysis/model.h"
#include "model/document.h"
#include "model/response_spectrum.h"

// The road between a model document and the analysis: what the document holds today is read
// into the analysis model (in lb, in and s), and the results are written back into its
// "results" section in the document's units.
//
// Read: nodes, materials, sections (RIGID_LINK sections as rigid links), thicknesses, active
// members (tension-only and compression-only ones included) with their end releases, shells
// and bricks, supports and their settlements, nodal, coupled, line and surface springs,
// constraints and diaphragms, load cases and combinations, and every case's loads: nodal,
// member point and line, surface, area (passed to the members along the polygon's edges, see
// area_loads.h), thermal, self weight along Y, additional and combination masses. Loads on
// inactive elements and self weight along X or Z are left out, each with a note.
namespace analysis {

struct DocumentModel {
  Model model;
  std::vector<size_t> nodeOfDocument;  // analysis node per document node (same order)
  std::vector<std::string> notes;      // what was skipped, one line each
};

// Throws AnalysisError when an element names a node, material, section or thickness that
// does not exist.
DocumentModel ModelFromDocument(const model::ModelDocument& doc);

struct AnalysisRequest {
  int modes = 0;  // 0: no modal analysis
  MassModel masses = MassModel::Lumped;
  // Stations per member of the member results, evenly spaced from end to end (at least 2).
  int memberStations = 11;
  // The spectra the document's response spectrum settings name (from the user's spectrum
  // file); used only when those settings are enabled and modes > 0.
  std::vector<fmResponseSpectrum> spectra;
};

struct AnalysisSummary {
  std::vector<std::string> lines;  // what was solved, for a report or a log
};

// Runs the static analysis (and the modal and response-spectrum analyses when asked) and
// replaces doc.results with what they produce. The document is left as it was when the
// analysis throws.
AnalysisSummary AnalyseDocument(model::ModelDocument& doc, const AnalysisRequest& request, const Progress& progress = {});

}  // namespace analysis
