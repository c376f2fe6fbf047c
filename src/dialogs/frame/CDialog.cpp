#include "dialogs/frame/CDialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTreeWidget>

#include "dialogs/frame/ControlText.h"
#include "dialogs/frame/DataExchange.h"
#include "dialogs/frame/DebugOutput.h"
#include "dialogs/frame/FolderBrowseEdit.h"
#include "dialogs/frame/Form.h"
#include "dialogs/frame/TemplateBuilder.h"
#include "resources/ids.h"
#include "tools/format.h"

namespace {
CDialog::ModalLoopHook& ModalHook() {
  static CDialog::ModalLoopHook hook;
  return hook;
}
}  // namespace

CDialog::CDialog(int templateId, QWidget* pParent) : QDialog(pParent), templateId_(templateId) {}

CDialog::CDialog(const frame::FormBase& form, QWidget* pParent)
    : QDialog(pParent), templateId_(form.TemplateId()), form_(&form) {
  form.Publish();
}

CDialog::ModalLoopHook CDialog::SetModalLoopHook(ModalLoopHook hook) {
  ModalLoopHook previous = std::move(ModalHook());
  ModalHook() = std::move(hook);
  return previous;
}

CDialog::~CDialog() = default;

void CDialog::CreateFromTemplate() {
  if (created_) return;
  created_ = true;
  template_ = res::FindTemplate(templateId_);
  if (!template_) {
    DebugOutput(tools::Format("Error loading dialog template %d", templateId_));
    return;
  }
  setWindowTitle(QString::fromUtf8(template_->caption));
  items_ = frame::BuildFromTemplate(this, *template_);
  ConnectControls();
}

void CDialog::ConnectControls() {
  for (const auto& [id, widget] : items_) {
    const int controlId = id;
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
      connect(button, &QAbstractButton::clicked, this, [this, controlId] { Route(controlId); });
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
      connect(combo, &QComboBox::activated, this, [this, controlId] {
        if (auto it = selChanges_.find(controlId); it != selChanges_.end()) it->second();
      });
    } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
      connect(edit, &QLineEdit::textChanged, this, [this, controlId] {
        if (auto it = editChanges_.find(controlId); it != editChanges_.end()) it->second();
      });
    } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
      connect(list, &QListWidget::currentRowChanged, this, [this, controlId] {
        if (auto it = selChanges_.find(controlId); it != selChanges_.end()) it->second();
      });
      connect(list, &QListWidget::itemDoubleClicked, this, [this, controlId] {
        if (auto it = doubleClicks_.find(controlId); it != doubleClicks_.end()) it->second();
      });
    } else if (auto* tree = qobject_cast<QTreeWidget*>(widget)) {
      connect(tree, &QTreeWidget::itemSelectionChanged, this, [this, controlId] {
        if (auto it = selChanges_.find(controlId); it != selChanges_.end()) it->second();
      });
      connect(tree, &QTreeWidget::itemDoubleClicked, this, [this, controlId] {
        if (auto it = doubleClicks_.find(controlId); it != doubleClicks_.end()) it->second();
      });
    }
  }
}

void CDialog::Route(int controlId) {
  if (auto it = commands_.find(controlId); it != commands_.end()) {
    it->second();
    return;
  }
  if (controlId == IDOK)
    OnOK();
  else if (controlId == IDCANCEL)
    OnCancel();
}

int CDialog::DoModal() {
  modalResult_ = 0;
  CreateFromTemplate();
  OnInitDialog();
  // A dialog may end itself while it sets up (a report that cannot be built).
  if (modalResult_ != 0) return modalResult_;
  if (ModalHook()) {
    const int result = ModalHook()(*this);
    return modalResult_ != 0 ? modalResult_ : result;
  }
  exec();
  return modalResult_ != 0 ? modalResult_ : IDCANCEL;
}

BOOL CDialog::InitDialogForTest() {
  modalResult_ = 0;
  CreateFromTemplate();
  return OnInitDialog();
}

void CDialog::EndDialog(int result) {
  modalResult_ = result;
  QDialog::done(result);
}

void CDialog::accept() { Route(IDOK); }
void CDialog::reject() { Route(IDCANCEL); }

BOOL CDialog::OnInitDialog() {
  if (template_) {
    // A template without a caption string (a private-label box) keeps its own caption.
    if (template_->captionStringId != 0) LoadDialogCaption(template_->captionStringId);
    LoadTemplateCaptions();
  }
  if (form_) form_->Prepare(*this);
  UpdateData(0);
  return 1;
}

void CDialog::DoDataExchange(CDataExchange* pDX) {
  if (form_) form_->Exchange(*this, pDX);
}

void CDialog::OnOK() {
  const std::function<void()> restore = form_ ? form_->Keep(*this) : [] {};
  if (!UpdateData(1) || !ValidateOnOK()) {
    restore();
    return;
  }
  EndDialog(IDOK);
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

QWidget* CDialog::GetDlgItem(int controlId) const {
  const auto it = items_.find(controlId);
  return it == items_.end() ? nullptr : it->second;
}

bool CDialog::UpdateData(BOOL bSaveAndValidate) {
  // A refused value leaves none of the form's members half-written.
  const std::function<void()> restore = bSaveAndValidate && form_ ? form_->Keep(*this) : [] {};
  CDataExchange dx(this, bSaveAndValidate);
  try {
    DoDataExchange(&dx);
  } catch (const DataExchangeFailure&) {
    restore();
    return false;
  }
  return true;
}


void CDialog::SetDlgItemText(int controlId, const std::string& text) {
  if (QWidget* w = GetDlgItem(controlId)) frame::SetControlText(w, QString::fromStdString(text));
}

std::string CDialog::GetDlgItemText(int controlId) const {
  const QWidget* w = GetDlgItem(controlId);
  return w ? frame::ControlText(w).toStdString() : std::string();
}

void CDialog::EnableDlgItem(int controlId, bool enable) {
  if (QWidget* w = GetDlgItem(controlId)) w->setEnabled(enable);
}

void CDialog::ShowDlgItem(int controlId, bool show) {
  if (QWidget* w = GetDlgItem(controlId)) w->setVisible(show);
}

void CDialog::SetComboItems(int controlId, const std::vector<std::string>& items) {
  QWidget* w = GetDlgItem(controlId);
  if (auto* combo = qobject_cast<QComboBox*>(w)) {
    combo->clear();
    for (const std::string& item : items) combo->addItem(QString::fromStdString(item));
    combo->setCurrentIndex(items.empty() ? -1 : 0);
  } else if (auto* list = qobject_cast<QListWidget*>(w)) {
    list->clear();
    for (const std::string& item : items) list->addItem(QString::fromStdString(item));
    list->setCurrentRow(items.empty() ? -1 : 0);
  }
}

void CDialog::FailOn(int controlId, const std::string& text) {
  MessageBox(text);
  QWidget* w = GetDlgItem(controlId);
  if (!w) return;
  w->setFocus();
  if (auto* folder = dynamic_cast<FolderBrowseEdit*>(w)) w = folder->lineEdit();
  if (auto* edit = qobject_cast<QLineEdit*>(w)) {
    edit->setFocus();
    edit->selectAll();
  }
}

bool CDialog::PressButton(int controlId) {
  auto* button = qobject_cast<QAbstractButton*>(GetDlgItem(controlId));
  if (!button || !button->isEnabled() || button->isHidden()) return false;
  button->click();
  return true;
}

bool CDialog::ChooseItem(int controlId, int index) {
  QWidget* w = GetDlgItem(controlId);
  if (!w || !w->isEnabled()) return false;
  if (auto* combo = qobject_cast<QComboBox*>(w)) {
    if (index < 0 || index >= combo->count()) return false;
    combo->setCurrentIndex(index);
    emit combo->activated(index);
    return true;
  }
  if (auto* list = qobject_cast<QListWidget*>(w)) {
    if (index < 0 || index >= list->count()) return false;
    list->setCurrentRow(index);
    return true;
  }
  if (auto* tree = qobject_cast<QTreeWidget*>(w)) {
    if (index < 0 || index >= tree->topLevelItemCount()) return false;
    tree->setCurrentItem(tree->topLevelItem(index));
    return true;
  }
  return false;
}

bool CDialog::LoadDialogCaption(int stringId) {
  const auto text = res::LoadString(stringId);
  if (!text) {
    DebugOutput(tools::Format("Error loading string in dialog [%s]: stringID = %d",
                              windowTitle().toStdString().c_str(), stringId));
    return false;
  }
  setWindowTitle(QString::fromStdString(*text));
  return true;
}

bool CDialog::LoadControlCaption(int controlId, int stringId) {
  const auto text = res::LoadString(stringId);
  const std::string caption = windowTitle().toStdString();
  if (!text) {
    DebugOutput(tools::Format("Error loading string in dialog [%s]: ctrlID = %d, stringID = %d", caption.c_str(),
                              controlId, stringId));
    return false;
  }
  QWidget* w = GetDlgItem(controlId);
  if (!w) {
    DebugOutput(tools::Format("Error finding control in dialog [%s]: ctrlID = %d, stringID = %d", caption.c_str(),
                              controlId, stringId));
    return false;
  }
  frame::SetControlText(w, QString::fromStdString(*text));
  return true;
}

void CDialog::LoadTemplateCaptions() {
  if (!template_) return;
  for (const res::Control& c : template_->controls)
    if (c.stringId != 0 && c.id != 0) LoadControlCaption(c.id, c.stringId);
}

void CDialog::ApplyGridEditLock(BOOL bShowSelectedOnly, BOOL bModelLocked, const GridEditLock& how) {
  if (!bShowSelectedOnly && !bModelLocked) return;
  for (int id : how.disable) EnableDlgItem(id, false);
  SetDlgItemText(how.closeButton, res::LoadStringOr(res::kStrClose, "Close"));
  if (how.hideCancel) ShowDlgItem(IDCANCEL, false);
  if (!how.message.empty()) {
    MessageBox(how.message, MessageIcon::Information);
    return;
  }
  // The second message deliberately repeats the first when both flags are set.
  std::string message;
  if (bModelLocked) {
    message += "The Model is locked.\n";
    message += "You can not modify data in the spreadsheet.";
    message += "\nTo enable editting, unlock the model from Edit->Unlock Model";
    MessageBox(message, MessageIcon::Information);
  }
  if (bShowSelectedOnly) {
    message += "Only selected items will be displayed.\n";
    message += "You can not modify data in the spreadsheet.";
    message += "\nTo enable editting, turn off 'show only selected entities in spreadsheet' from Settings->Data Options.";
    MessageBox(message, MessageIcon::Information);
  }
}

void CDialog::OnCommand(int controlId, std::function<void()> handler) { commands_[controlId] = std::move(handler); }
void CDialog::OnSelChange(int controlId, std::function<void()> handler) { selChanges_[controlId] = std::move(handler); }
void CDialog::OnEditChange(int controlId, std::function<void()> handler) {
  editChanges_[controlId] = std::move(handler);
}
void CDialog::OnDoubleClick(int controlId, std::function<void()> handler) {
  doubleClicks_[controlId] = std::move(handler);
}

void CDialog::MessageBox(const std::string& text, MessageIcon icon) { GetPrompter().Message(this, text, icon); }
bool CDialog::AskYesNo(const std::string& text) { return GetPrompter().Question(this, text); }
