#include "dialogs/design/CComputeKDlg.h"

#include <QFrame>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "dialogs/design/KFactorChart.h"
#include "dialogs/frame/DataExchange.h"
#include "dialogs/frame/Form.h"
#include "dialogs/frame/TemplateBuilder.h"
#include "resources/design_ids.h"
#include "tools/format.h"
#include "tools/parse.h"

using namespace res;
using design::FrameKind;

// Inputs and results on the left, the picture of both equations beside them.
const frame::Form<CComputeKDlg>& CComputeKDlg::Description() {
  using F = frame::Field<CComputeKDlg>;
  using D = CComputeKDlg;
  static const frame::Form<D> form(
      {.templateId = kIddComputeK, .caption = "Compute Effective Length Factor K", .minWidth = 900, .minHeight = 520,
       .buttons = frame::FormFrame::Buttons::Close, .stretchColumn = false},
      {
          F::Group("Relative stiffness ratios at the top and bottom joints of the column").Span(2),
          F::Real("@ Column Top:", &D::m_dGA, design::kGMin, design::kGMax),
          F::Real("@ Column Bottom:", &D::m_dGB, design::kGMin, design::kGMax),
          F::EndGroup(),
          // The results are shown, never read back: the boxes hold them rounded.
          F::Result("Braced K:").Id(kCtlBracedK).LabelId(0, kStrBracedK).Flags(kAlignRight),
          F::Result("Unbraced K:").Id(kCtlUnbracedK).LabelId(0, kStrUnbracedK).Flags(kAlignRight),
          F::Static("").Span(2).Flags(kStretchRow),
          F::Grid().Id(kCtlKChart).At(0, 2, 4, 1).Stretch(kStretchCol),
          F::Button("Compute").Id(kCtlCompute).At(frame::kButtonBar, 0),
      });
  return form;
}

CComputeKDlg::CComputeKDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnCommand(kCtlCompute, [this] { OnCompute(); });
  OnEditChange(frame::IdOf(&CComputeKDlg::m_dGA), [this] { OnRatioEdited(); });
  OnEditChange(frame::IdOf(&CComputeKDlg::m_dGB), [this] { OnRatioEdited(); });
}

BOOL CComputeKDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  if (auto* place = Item<QFrame>(kCtlKChart)) {
    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    chart_ = new KFactorChart(place);
    layout->addWidget(chart_);
    chart_->Plot(m_dGA, m_dGB, nullptr, nullptr);
  }
  return 1;
}

void CComputeKDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  if (!pDX->m_bSaveAndValidate) ShowResults();
}

void CComputeKDlg::ShowResults() {
  auto shown = [](double k, bool failed) {
    return failed ? res::LoadStringOr(kStrNoRoot, "No root") : tools::Format("%.2f", k);
  };
  SetDlgItemText(kCtlBracedK, shown(m_dBracedK, m_bBracedKFailed));
  SetDlgItemText(kCtlUnbracedK, shown(m_dUnbracedK, m_bUnbracedKFailed));
}

void CComputeKDlg::OnCompute() {
  if (!UpdateData(1)) return;
  const design::KResult braced = design::SolveK(FrameKind::Braced, m_dGA, m_dGB);
  const design::KResult unbraced = design::SolveK(FrameKind::Unbraced, m_dGA, m_dGB);
  // A failure leaves its K as it was before any computation, as an error raised in the
  // solver would have.
  m_dBracedK = braced.k.value_or(1.0);
  m_dUnbracedK = unbraced.k.value_or(1.0);
  m_bBracedKFailed = !braced.k;
  m_bUnbracedKFailed = !unbraced.k;
  computedFor_ = std::pair{m_dGA, m_dGB};
  UpdateData(0);
  if (chart_) chart_->Plot(m_dGA, m_dGB, &braced, &unbraced);

  // Both failures in one message, each under the name of its result.
  std::string message;
  for (const auto& [result, label] : {std::pair{&braced, res::LoadStringOr(kStrBracedK, "Braced K:")},
                                      std::pair{&unbraced, res::LoadStringOr(kStrUnbracedK, "Unbraced K:")}}) {
    if (result->k) continue;
    if (!message.empty()) message += "\n";
    message += label + " " + result->error;
  }
  if (!message.empty()) MessageBox(message, MessageIcon::Error);
}

void CComputeKDlg::OnRatioEdited() {
  const auto ga = tools::ParseDouble(GetDlgItemText(frame::IdOf(&CComputeKDlg::m_dGA)));
  const auto gb = tools::ParseDouble(GetDlgItemText(frame::IdOf(&CComputeKDlg::m_dGB)));
  // Writing the computed ratios back into their boxes is no edit.
  if (computedFor_ && ga == computedFor_->first && gb == computedFor_->second) return;
  if (computedFor_) {
    computedFor_.reset();
    m_dBracedK = m_dUnbracedK = 1.0;
    m_bBracedKFailed = m_bUnbracedKFailed = 0;
    ShowResults();
  }
  if (chart_ && ga && gb && *ga >= design::kGMin && *ga <= design::kGMax && *gb >= design::kGMin &&
      *gb <= design::kGMax)
    chart_->Plot(*ga, *gb, nullptr, nullptr);
}

void CComputeKDlg::OnOK() {
  if (m_dBracedK == 1.0 && m_dUnbracedK != 0.0) {
    MessageBox("Invalid Ks");
    return;
  }
  CDialog::OnOK();
}

void CComputeKDlg::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter || (event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
    CDialog::keyPressEvent(event);
    return;
  }
  // On a focused push button Enter presses it; anywhere else it is OK.
  if (auto* button = qobject_cast<QPushButton*>(focusWidget()); button && button->isEnabled())
    button->click();
  else
    accept();
}
