#pragma once
#include <QDialog>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "dialogs/frame/Prompter.h"
#include "resources/grid_ids.h"
#include "resources/resources.h"

using BOOL = int;
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;

class CDataExchange;
namespace frame {
class FormBase;
template <class Dlg>
class Form;
}  // namespace frame
// How a grid dialog turns read-only when the model is locked or only selected entities are
// shown. The defaults are the standard guard; a dialog changes only what differs.
struct GridEditLock {
  std::vector<int> disable{IDOK, res::kCtlNewRowCount, res::kCtlNewRows, res::kCtlGridEditAction};
  int closeButton = IDCANCEL;  // the button that then reads "Close"
  bool hideCancel = false;     // OK itself closes, so Cancel goes
  std::string message;  // not empty: this one box instead of the locked and selected-only texts
};

class CWnd;  // the host's window is a plain QWidget here
using CWndPtr = QWidget*;

// The base of every dialog of the library: a QDialog built from its template, with the
// command routing, data exchange and caption helpers that the dialogs share.
class CDialog : public QDialog {
 public:
  explicit CDialog(int templateId, QWidget* pParent = nullptr);
  // A dialog described as a form: its template, strings and data exchange come from it.
  explicit CDialog(const frame::FormBase& form, QWidget* pParent = nullptr);
  ~CDialog() override;

  // Builds the window, runs OnInitDialog and then the modal loop; IDOK or IDCANCEL.
  int DoModal();
  void EndDialog(int result);

  QWidget* GetDlgItem(int controlId) const;
  template <class W>
  W* Item(int controlId) const {
    return qobject_cast<W*>(GetDlgItem(controlId));
  }
  bool UpdateData(BOOL bSaveAndValidate = 1);
  void SetDlgItemText(int controlId, const std::string& text);
  std::string GetDlgItemText(int controlId) const;
  void EnableDlgItem(int controlId, bool enable);
  void ShowDlgItem(int controlId, bool show);
  // Replaces a drop-down's or list's entries; the choice falls back to the first entry.
  void SetComboItems(int controlId, const std::vector<std::string>& items);
  // Refuses a value: shows the text, focuses the control and selects what it holds.
  void FailOn(int controlId, const std::string& text);
  int TemplateId() const { return templateId_; }
  const res::DialogTemplate* Template() const { return template_; }

  // Test entry: builds the window and runs OnInitDialog without a modal loop.
  BOOL InitDialogForTest();
  // Presses a button as a user would; false when it is missing, hidden or disabled.
  bool PressButton(int controlId);
  // Chooses a drop-down or list entry as a user would (the selection-change handler runs).
  bool ChooseItem(int controlId, int index);
  // The result EndDialog gave, or 0 while the dialog is open.
  int ModalResult() const { return modalResult_; }

  // Replaces the modal loop of every DoModal (after OnInitDialog) while set, so a test can
  // drive a dialog that another dialog opens; the hook returns the dialog's result.
  // Returns the previous hook; an empty one restores the loop.
  using ModalLoopHook = std::function<int(CDialog& dialog)>;
  static ModalLoopHook SetModalLoopHook(ModalLoopHook hook);

 protected:
  virtual BOOL OnInitDialog();
  virtual void DoDataExchange(CDataExchange* pDX);
  // The standard OK: exchange and validate, the dialog's own checks, IDOK. When either
  // refuses, the members bound by the form keep the values they had before.
  virtual void OnOK();
  virtual void OnCancel();
  // The dialog's own checks after a successful exchange; refuse with FailOn or MessageBox
  // and return false to stay open.
  virtual bool ValidateOnOK() { return true; }

  bool LoadDialogCaption(int stringId);
  bool LoadControlCaption(int controlId, int stringId);
  // Every control of the template that names a string gets that string's text.
  void LoadTemplateCaptions();
  // The locked-model guard: nothing happens unless a flag is set.
  void ApplyGridEditLock(BOOL bShowSelectedOnly, BOOL bModelLocked, const GridEditLock& how = {});

  // The message map: handlers by control id.
  void OnCommand(int controlId, std::function<void()> handler);
  void OnSelChange(int controlId, std::function<void()> handler);
  void OnEditChange(int controlId, std::function<void()> handler);
  void OnDoubleClick(int controlId, std::function<void()> handler);

  void MessageBox(const std::string& text, MessageIcon icon = MessageIcon::Warning);
  bool AskYesNo(const std::string& text);

  // Builds the widgets from the template once; called by DoModal and the test entry.
  void CreateFromTemplate();

  void accept() override;
  void reject() override;

 private:
  void Route(int controlId);
  void ConnectControls();

  int templateId_;
  const frame::FormBase* form_ = nullptr;
  const res::DialogTemplate* template_ = nullptr;
  bool created_ = false;
  int modalResult_ = 0;
  std::unordered_map<int, QWidget*> items_;
  std::unordered_map<int, std::function<void()>> commands_, selChanges_, editChanges_, doubleClicks_;
};
