#include "dialogs/boundary/boundary_tables.h"

namespace boundarygrid {
namespace {

template <class Record>
int FillWith(const model::ModelDocument& doc, const std::vector<Record>& records, grid::Sheet& sheet) {
  Table<Record> table;
  return table.Fill(sheet, records, {doc.nodes, doc.members, doc.shells}, doc.units, doc.display.alternateRowColor,
                    false, false);
}

}  // namespace

int FillFromDocument(Kind kind, const model::ModelDocument& doc, grid::Sheet& sheet) {
  switch (kind) {
    case Kind::Supports: return FillWith(doc, doc.supports, sheet);
    case Kind::NodalSprings: return FillWith(doc, doc.nodalSprings, sheet);
    case Kind::LineSprings: return FillWith(doc, doc.lineSprings, sheet);
    case Kind::SurfaceSprings: return FillWith(doc, doc.surfaceSprings, sheet);
    case Kind::CoupledSprings: return FillWith(doc, doc.coupledSprings, sheet);
    case Kind::Releases: return FillWith(doc, doc.releases, sheet);
    case Kind::Constraints: return FillWith(doc, doc.constraints, sheet);
    case Kind::Diaphragms: return FillWith(doc, doc.diaphragms, sheet);
    case Kind::DriftNodes: return FillWith(doc, DriftNodesOf(doc.driftNodes), sheet);
  }
  return 0;
}

}  // namespace boundarygrid
