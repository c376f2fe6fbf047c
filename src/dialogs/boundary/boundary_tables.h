#pragma once
#include "dialogs/boundary/boundary_grid.h"
#include "dialogs/grid/sheet.h"
#include "model/document.h"

namespace boundarygrid {

// Fills the grid of one boundary table from a model document, as its dialog does.
int FillFromDocument(Kind kind, const model::ModelDocument& doc, grid::Sheet& sheet);

}  // namespace boundarygrid
