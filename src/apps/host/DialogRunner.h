#pragma once
#include <memory>
#include <string>

#include "apps/host/HostModel.h"

class CDialog;
class QWidget;

// Creates a registered dialog and sets its members from the model as the host does.
// Returns null for an unknown class name.
std::unique_ptr<CDialog> CreateBoundDialog(const std::string& className, HostModel& model, QWidget* parent);
// DoModal and then TakeBackDialogResult.
int RunBoundDialog(const std::string& className, HostModel& model, QWidget* parent);
// After IDOK, the binding's take-back; after any other result its after-cancel, for dialogs
// that act on the model at once. Marks the model modified when it changed and returns
// whether it did.
bool TakeBackDialogResult(const std::string& className, CDialog& dlg, int result, HostModel& model);
// Builds the dialog without a modal loop, runs its set-up and renders it to a PNG.
// Message boxes raised during set-up are written to stderr instead of waiting for a click.
bool RenderDialogToPng(const std::string& className, HostModel& model, const std::string& pngPath,
                       std::string& error);
bool RenderWidgetToPng(QWidget& widget, const std::string& pngPath, std::string& error);
// Builds a table dialog as RenderDialogToPng does and prints its whole grid, as its
// "Print..." lays it out, to a PDF file; no question is asked. pages receives the count.
bool PrintDialogGridToPdf(const std::string& className, HostModel& model, const std::string& pdfPath,
                          std::string& error, int* pages = nullptr);
