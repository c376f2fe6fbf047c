#pragma once
#include "model/document.h"

namespace model {

// Changes the document's units to `to`. Stored values of each quantity whose convert flag
// is set in `to` are converted, so they keep their physical size; the others keep their
// numbers and are read in the new unit. A value that would not be a finite number in the
// new units refuses the change with fmException, and the document is left as it was.
void ChangeDocumentUnits(ModelDocument& doc, const fmUnit& to);

}  // namespace model
