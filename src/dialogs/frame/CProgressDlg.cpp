#include "dialogs/frame/CProgressDlg.h"

#include <QMetaObject>
#include <QProgressBar>

#include "dialogs/frame/Form.h"
#include "resources/frame_ids.h"
#include "tools/format.h"

using res::kCtlProgressBar;

namespace {
const CRuntimeClass classCDialog = {"CDialog", static_cast<int>(sizeof(CDialog)), nullptr};
}  // namespace

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const {
  for (const CRuntimeClass* c = this; c; c = c->m_pBaseClass)
    if (c == base) return true;
  return false;
}

const CRuntimeClass CProgressDlg::classCProgressDlg = {"CProgressDlg", static_cast<int>(sizeof(CProgressDlg)),
                                                       &classCDialog};

const frame::Form<CProgressDlg>& CProgressDlg::Description() {
  using F = frame::Field<CProgressDlg>;
  static const frame::Form<CProgressDlg> form(
      {res::kIddProgress, "Sparse Matrix Factorization...", 0, 360, 0, 0, frame::FormFrame::Buttons::None},
      {F::Progress().Id(kCtlProgressBar)});
  return form;
}

CProgressDlg::CProgressDlg(QWidget* pParent) : CDialog(Description(), pParent) {}

bool CProgressDlg::Create(QWidget* pParent) {
  if (pParent) setParent(pParent, windowFlags());
  CreateFromTemplate();
  OnInitDialog();
  setModal(false);
  return true;
}

BOOL CProgressDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  if (auto* bar = Item<QProgressBar>(kCtlProgressBar)) {
    bar->setRange(0, 100);
    bar->setValue(0);
  }
  return 1;
}

int CProgressDlg::Position() const {
  auto* bar = Item<QProgressBar>(kCtlProgressBar);
  return bar ? bar->value() : 0;
}

LRESULT CProgressDlg::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PROGRESS_UPDATE: return OnUpdateProgress(wParam, lParam);
    case WM_PROGRESS_SHOW: return OnShowProgress(wParam, lParam);
    case WM_PROGRESS_HIDE: return OnHideProgress(wParam, lParam);
    default: return 0;
  }
}

void CProgressDlg::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  QMetaObject::invokeMethod(this, [this, message, wParam, lParam] { SendMessage(message, wParam, lParam); },
                            Qt::QueuedConnection);
}

LRESULT CProgressDlg::OnUpdateProgress(WPARAM wParam, LPARAM) {
  const int percent = static_cast<int>(wParam);
  if (auto* bar = Item<QProgressBar>(kCtlProgressBar)) bar->setValue(percent);
  setWindowTitle(QString::fromStdString(tools::Format("Sparse Matrix Factorization (%d%%)", percent)));
  raise();
  return 1;
}

LRESULT CProgressDlg::OnShowProgress(WPARAM, LPARAM) {
  show();
  return 1;
}

LRESULT CProgressDlg::OnHideProgress(WPARAM, LPARAM) {
  hide();
  if (auto* bar = Item<QProgressBar>(kCtlProgressBar)) bar->setValue(0);
  return 1;
}
