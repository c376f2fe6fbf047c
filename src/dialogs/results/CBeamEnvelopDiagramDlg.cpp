#include "dialogs/results/CBeamEnvelopDiagramDlg.h"

#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineSeries>
#include <QPainter>
#include <QPrinter>
#include <QToolTip>
#include <QVBoxLayout>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

#include "dialogs/frame/Form.h"
#include "dialogs/frame/Prompter.h"
#include "resources/results_ids.h"
#include "tools/format.h"

using D = CBeamEnvelopDiagramDlg;

const frame::Form<CBeamEnvelopDiagramDlg>& CBeamEnvelopDiagramDlg::Description() {
  using F = frame::Field<D>;
  const auto members = [](const D& d) {
    std::vector<std::string> texts;
    if (d.m_pStruct)
      for (int32_t id : results::EnvelopeMembers(*d.m_pStruct)) texts.push_back(tools::Format("%d", id));
    return texts;
  };
  const auto forces = [](const D&) { return results::MemberForceNames(); };
  static const frame::Form<D> form(
      {.templateId = res::kIddBeamEnvelopDiagram, .caption = "Member Envelope Diagram", .minWidth = 760,
       .minHeight = 520, .buttons = frame::FormFrame::Buttons::Close},
      {
          F::DropIndex("Member:", &D::m_nMemberIndex).Items(members),
          F::DropIndex("Force or moment:", &D::m_nForce).Items(forces),
          F::Grid().Id(res::kCtlEnvelopeChart).Span(2).Stretch(res::kStretchRow),
          F::Static("").Id(res::kCtlEnvelopeStatus).Span(2),
          F::Button("Print...").Id(res::kCtlEnvelopePrint),
      });
  return form;
}

CBeamEnvelopDiagramDlg::CBeamEnvelopDiagramDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnSelChange(frame::IdOf(&D::m_nMemberIndex), [this] { OnSelchange(); });
  OnSelChange(frame::IdOf(&D::m_nForce), [this] { OnSelchange(); });
  OnCommand(res::kCtlEnvelopePrint, [this] { Print(); });
}

BOOL CBeamEnvelopDiagramDlg::OnInitDialog() {
  if (m_pStruct) members_ = results::EnvelopeMembers(*m_pStruct);
  const auto at = std::find(members_.begin(), members_.end(), m_nMember);
  m_nMemberIndex = at == members_.end() ? 0 : static_cast<int32_t>(at - members_.begin());
  m_nForce = std::clamp(m_nForce, 0, 5);
  CDialog::OnInitDialog();
  if (auto* place = Item<QFrame>(res::kCtlEnvelopeChart)) {
    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    chart_ = new QChart();
    chart_->setMargins(QMargins(4, 4, 4, 4));
    maxSeries_ = new QLineSeries(chart_);
    maxSeries_->setName("max");
    maxSeries_->setPen(QPen(QColor(0xc0, 0x20, 0x20), 2));
    maxSeries_->setPointsVisible(true);
    minSeries_ = new QLineSeries(chart_);
    minSeries_->setName("min");
    minSeries_->setPen(QPen(QColor(0x1f, 0x5f, 0xbf), 2));
    minSeries_->setPointsVisible(true);
    chart_->addSeries(maxSeries_);
    chart_->addSeries(minSeries_);
    auto* x = new QValueAxis();
    auto* y = new QValueAxis();
    x->setLabelFormat("%g");
    y->setLabelFormat("%g");
    chart_->addAxis(x, Qt::AlignBottom);
    chart_->addAxis(y, Qt::AlignLeft);
    for (QLineSeries* s : {maxSeries_, minSeries_}) {
      s->attachAxis(x);
      s->attachAxis(y);
    }
    connect(maxSeries_, &QLineSeries::hovered, this, [this](const QPointF& p, bool on) {
      if (on) HoverAt(p.x(), true);
    });
    connect(minSeries_, &QLineSeries::hovered, this, [this](const QPointF& p, bool on) {
      if (on) HoverAt(p.x(), false);
    });
    view_ = new QChartView(chart_, place);
    view_->setRenderHint(QPainter::Antialiasing);
    view_->setMinimumSize(560, 340);
    layout->addWidget(view_);
  }
  Redraw();
  return 1;
}

void CBeamEnvelopDiagramDlg::OnSelchange() {
  if (auto* member = Item<QComboBox>(frame::IdOf(&D::m_nMemberIndex))) m_nMemberIndex = member->currentIndex();
  if (auto* force = Item<QComboBox>(frame::IdOf(&D::m_nForce))) m_nForce = force->currentIndex();
  Redraw();
}

void CBeamEnvelopDiagramDlg::Redraw() {
  curve_ = results::EnvelopeCurve();
  if (m_pStruct && m_nMemberIndex >= 0 && static_cast<size_t>(m_nMemberIndex) < members_.size()) {
    m_nMember = members_[static_cast<size_t>(m_nMemberIndex)];
    curve_ = results::MemberEnvelopeCurve(*m_pStruct, m_nMember, m_nForce);
  }
  if (auto* status = Item<QLabel>(res::kCtlEnvelopeStatus))
    status->setText(curve_.empty() ? QString("No member results in the load cases and combinations chosen for "
                                             "envelopes.")
                                   : QString("Point at the curve to see the combination that governs it."));
  if (!chart_) return;
  QList<QPointF> top, bottom;
  double lo = 0, hi = 0;
  for (size_t k = 0; k < curve_.distance.size(); ++k) {
    // A value no entry gave is not drawn.
    if (std::isfinite(curve_.max[k])) top.append(QPointF(curve_.distance[k], curve_.max[k]));
    if (std::isfinite(curve_.min[k])) bottom.append(QPointF(curve_.distance[k], curve_.min[k]));
    for (double v : {curve_.max[k], curve_.min[k]})
      if (std::isfinite(v)) {
        lo = std::min(lo, v);
        hi = std::max(hi, v);
      }
  }
  maxSeries_->replace(top);
  minSeries_->replace(bottom);
  chart_->setTitle(curve_.empty() ? QString("Member envelope")
                                  : QString::fromStdString(tools::Format("Member %d: %s envelope", curve_.member,
                                                                         curve_.forceName.c_str())));
  const auto axes = chart_->axes();
  for (QAbstractAxis* a : axes) {
    auto* axis = qobject_cast<QValueAxis*>(a);
    if (!axis) continue;
    if (axis->orientation() == Qt::Horizontal) {
      axis->setTitleText(QString::fromStdString("Distance [" + curve_.lengthUnit + "]"));
      axis->setRange(0, curve_.distance.empty() ? 1.0 : std::max(curve_.distance.back(), 1e-9));
    } else {
      axis->setTitleText(QString::fromStdString(curve_.forceName + " [" + curve_.valueUnit + "]"));
      const double pad = 0.05 * std::max(hi - lo, 1e-9);
      axis->setRange(lo - pad, hi + pad);
      axis->applyNiceNumbers();
    }
  }
}

void CBeamEnvelopDiagramDlg::HoverAt(double distance, bool max) {
  if (curve_.empty()) return;
  size_t nearest = 0;
  for (size_t k = 1; k < curve_.distance.size(); ++k)
    if (std::fabs(curve_.distance[k] - distance) < std::fabs(curve_.distance[nearest] - distance)) nearest = k;
  const std::string text = results::GoverningText(*m_pStruct, curve_, nearest, max);
  if (auto* status = Item<QLabel>(res::kCtlEnvelopeStatus)) status->setText(QString::fromStdString(text));
  if (view_ && view_->isVisible()) QToolTip::showText(QCursor::pos(), QString::fromStdString(text), view_);
}

std::string CBeamEnvelopDiagramDlg::StatusText() const {
  auto* status = Item<QLabel>(res::kCtlEnvelopeStatus);
  return status ? status->text().toStdString() : std::string();
}

bool CBeamEnvelopDiagramDlg::Print() {
  if (!view_) return false;
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(QPageLayout::Landscape);
  if (!GetPrompter().PrintSetup(this, printer)) return false;
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  const QRect page = painter.viewport();
  // The diagram fills the page at its own proportions.
  QSize size = view_->size();
  size.scale(page.size(), Qt::KeepAspectRatio);
  view_->render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
  painter.end();
  return true;
}
