#include "apps/host/DialogRunner.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QPixmap>
#include <QPrinter>
#include <QPushButton>
#include <functional>
#include <iostream>

#include "apps/host/DialogBindings.h"
#include "dialogs/frame/CDialog.h"
#include "dialogs/frame/CProgressDlg.h"
#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/frame/Prompter.h"
#include "dialogs/grid/CDataGridDlg.h"
#include "dialogs/results/CResultsDlg.h"

namespace {

// The document as it would be saved; empty when it cannot be written (then any take-back
// counts as a change).
std::string DocumentText(const model::ModelDocument& doc) {
  try {
    return model::SerializeModelDocument(doc);
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace

std::unique_ptr<CDialog> CreateBoundDialog(const std::string& className, HostModel& model, QWidget* parent) {
  const DialogClassInfo* info = FindDialogClass(className);
  if (!info) return nullptr;
  std::unique_ptr<CDialog> dlg = info->create(parent);
  const DialogBinding* binding = FindDialogBinding(className);
  if (binding && (binding->takeBack || binding->afterCancel)) model.documentBefore = DocumentText(model.doc);
  if (binding && binding->prepare) binding->prepare(*dlg, model);
  return dlg;
}

int RunBoundDialog(const std::string& className, HostModel& model, QWidget* parent) {
  std::unique_ptr<CDialog> dlg = CreateBoundDialog(className, model, parent);
  if (!dlg) return 0;
  if (auto* progress = dynamic_cast<CProgressDlg*>(dlg.get())) {
    // The modeless window shows what a running factorization reports.
    progress->Create(parent);
    progress->SendMessage(CProgressDlg::WM_PROGRESS_SHOW);
    for (int p = 0; p <= 100; p += 5) {
      progress->SendMessage(CProgressDlg::WM_PROGRESS_UPDATE, static_cast<WPARAM>(p));
      QApplication::processEvents();
    }
    progress->SendMessage(CProgressDlg::WM_PROGRESS_HIDE);
    return IDOK;
  }
  const int result = dlg->DoModal();
  TakeBackDialogResult(className, *dlg, result, model);
  return result;
}

bool TakeBackDialogResult(const std::string& className, CDialog& dlg, int result, HostModel& model) {
  const DialogBinding* binding = FindDialogBinding(className);
  if (!binding) return false;
  // A dialog without a take-back (an about box) leaves the model as it was; one that acts on
  // the model at once may have changed it even when cancelled.
  const auto& takeBack = result == IDOK ? binding->takeBack : binding->afterCancel;
  bool changed = takeBack && takeBack(dlg, model);
  if (changed && !model.documentBefore.empty() && DocumentText(model.doc) == model.documentBefore) changed = false;
  model.documentBefore.clear();
  model.dialogState.reset();
  if (changed) model.modified = true;
  return changed;
}

bool RenderWidgetToPng(QWidget& widget, const std::string& pngPath, std::string& error) {
  widget.show();
  // A dialog takes the size its layout asks for; a main window keeps the size it was given.
  if (qobject_cast<QDialog*>(&widget)) widget.adjustSize();
  for (int i = 0; i < 3; ++i) QApplication::processEvents();
  const QPixmap picture = widget.grab();
  if (picture.isNull() || !picture.save(QString::fromStdString(pngPath), "PNG")) {
    error = "Cannot write the picture \"" + pngPath + "\"";
    return false;
  }
  return true;
}

namespace {

// Stands in for the user while a dialog is rendered: tells, answers No, cancels files.
class ReportingPrompter : public ScriptedPrompter {
 public:
  ReportingPrompter() {
    onPrompt = [](const Prompt& p) { std::cerr << "[message] " << p.text << "\n"; };
  }
};

// The enabled push button whose caption, without its mnemonic marks, is the text given.
QPushButton* FindButton(QWidget& dialog, const std::string& caption) {
  for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
    if (button->isEnabled() && button->text().remove(QLatin1Char('&')).toStdString() == caption) return button;
  }
  return nullptr;
}

}  // namespace

bool RenderDialogToPng(const std::string& className, HostModel& model, const std::string& pngPath,
                       std::string& error) {
  ReportingPrompter prompter;
  ScopedPrompter scoped(prompter);
  std::unique_ptr<CDialog> dlg = CreateBoundDialog(className, model, nullptr);
  if (!dlg) {
    error = "Unknown dialog class \"" + className + "\"";
    return false;
  }
  if (auto* progress = dynamic_cast<CProgressDlg*>(dlg.get())) {
    progress->Create(nullptr);
    progress->SendMessage(CProgressDlg::WM_PROGRESS_UPDATE, 42);
  } else {
    dlg->InitDialogForTest();
  }
  if (const auto press = model.showOptions.find("press"); press != model.showOptions.end()) {
    QPushButton* button = FindButton(*dlg, press->second);
    if (!button) {
      error = className + " has no button \"" + press->second + "\"";
      return false;
    }
    button->click();
  }
  return RenderWidgetToPng(*dlg, pngPath, error);
}

bool PrintDialogGridToPdf(const std::string& className, HostModel& model, const std::string& pdfPath,
                          std::string& error, int* pages) {
  ReportingPrompter prompter;
  ScopedPrompter scoped(prompter);
  std::unique_ptr<CDialog> dlg = CreateBoundDialog(className, model, nullptr);
  if (!dlg) {
    error = "Unknown dialog class \"" + className + "\"";
    return false;
  }
  // The dialogs whose "Print..." prints their table: the data grids and the results reports.
  TSpread* spread = nullptr;
  std::function<std::string()> title;
  if (auto* gridDlg = dynamic_cast<CDataGridDlg*>(dlg.get())) {
    spread = &gridDlg->Spread();
    title = [gridDlg] { return gridDlg->PrintTitle(); };
  } else if (auto* resultsDlg = dynamic_cast<CResultsDlg*>(dlg.get())) {
    spread = &resultsDlg->Spread();
    title = [resultsDlg] { return resultsDlg->windowTitle().toStdString(); };
  }
  if (!spread) {
    error = className + " has no table to print";
    return false;
  }
  dlg->InitDialogForTest();
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(QStringLiteral("Norvane"));
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(pdfPath));
  if (!spread->PrintBlock(printer, grid::Block{}, title(), pages)) {
    error = "Cannot write \"" + pdfPath + "\"";
    return false;
  }
  return true;
}
