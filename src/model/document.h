#pragma once
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "model/display_settings.h"
#include "model/fm_boundary.h"
#include "model/fm_case_load.h"
#include "model/fm_element.h"
#include "model/fm_load.h"
#include "model/fm_material.h"
#include "model/fm_node.h"
#include "model/fm_section.h"
#include "model/fm_solution.h"
#include "model/fm_support.h"
#include "model/response_spectrum_settings.h"
#include "tools/fm_unit.h"

namespace model {

// Everything a host keeps of one model, as stored in a model document (JSON).
struct ModelDocument {
  std::string title;
  fmUnit units;
  DisplaySettings display;
  std::vector<fmNd> nodes;
  std::vector<fmLoadCase> loadCases;
  std::vector<fmLoadComb> loadCombs;
  std::vector<fmCaseLoad> caseLoads;  // the loads of loadCases[i] at i; the same count
  std::vector<fmMat> materials;
  std::vector<fmSect> sections;
  std::vector<fmThick> thicknesses;
  std::vector<fmBm> members;
  std::vector<fmShell4> shells;
  std::vector<fmBrick> bricks;
  std::vector<fmSupport> supports;  // at most one per node, each at a node of `nodes`
  // Boundary and connection records (document_boundaries.cpp): at most one spring, coupled
  // spring or drift entry per node, one line spring or release per member, one surface
  // spring per shell; constraints and diaphragms numbered.
  std::vector<fmNodalSpring> nodalSprings;
  std::vector<fmCoupledSpring> coupledSprings;
  std::vector<fmLineSpring> lineSprings;
  std::vector<fmSurfaceSpring> surfaceSprings;
  std::vector<fmMemberRelease> releases;
  std::vector<fmConstraint> constraints;
  std::vector<fmDiaphragm> diaphragms;
  std::vector<uint32_t> driftNodes;  // the drift stack, from the bottom up
  // Labels of the load cases and combinations that take part in the envelope reports.
  std::vector<std::string> envelopeCombinations;
  fmResponseSpectrumSettings spectrumAnalysis;  // spectra named from the user's spectrum file
  fmSolution results;  // what the last solver run produced; empty when never solved

  bool operator==(const ModelDocument&) const = default;
};

// The schema version written; older versions stay readable.
inline constexpr int kDocumentSchemaVersion = 1;
// The largest model file that opens; saving refuses a larger one rather than write what would
// not open again.
inline constexpr size_t kMaxModelFileBytes = size_t(1) << 30;

// A document that could not be read: the file, the place in it and what is wrong.
class DocumentLoadError : public std::runtime_error {
 public:
  DocumentLoadError(const std::string& file, const std::string& place, const std::string& problem);
  // Memory ran out while reading the file.
  explicit DocumentLoadError(const std::string& file);
  const std::string& file() const { return file_; }
  const std::string& place() const { return place_; }
  const std::string& problem() const { return problem_; }

 private:
  std::string file_, place_, problem_;
};

ModelDocument ParseModelDocument(std::string_view text, const std::string& fileName);
ModelDocument LoadModelDocument(const std::string& path);
// Throws model::DocumentError (json_reader.h), naming the place, for a number that is not finite.
std::string SerializeModelDocument(const ModelDocument& doc);
// Replaces the file atomically; throws tools::FileError, DocumentError before touching the file,
// or DocumentTooLargeError (the old file kept) when it would pass `maxBytes`.
void SaveModelDocument(const ModelDocument& doc, const std::string& path, size_t maxBytes = kMaxModelFileBytes);

class DocumentTooLargeError : public std::runtime_error {
 public:
  DocumentTooLargeError(const std::string& file, size_t maxBytes);
};

// Removes the supports whose node is no longer in `nodes` (after nodes were renumbered), so
// that the document stays loadable; returns those node ids in support order.
std::vector<uint32_t> RemoveSupportsAtMissingNodes(ModelDocument& doc);
// The same for every boundary record that names a node, member or shell the model no longer
// has (springs, releases, constraints, diaphragm masters and sets, drift nodes); returns how
// many records were removed or changed.
size_t RemoveBoundariesAtMissingObjects(ModelDocument& doc);

}  // namespace model
