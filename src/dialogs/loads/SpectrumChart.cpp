#include "dialogs/loads/SpectrumChart.h"

#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QLogValueAxis>
#include <QPen>
#include <QVBoxLayout>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

#include "resources/resources.h"
#include "resources/spectra_ids.h"

namespace {

QString Text(int stringId, const char* fallback) { return QString::fromStdString(res::LoadStringOr(stringId, fallback)); }

}  // namespace

SpectrumChart::SpectrumChart(QWidget* parent) : QWidget(parent) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  chart_ = new QChart();
  chart_->legend()->hide();
  chart_->setMargins(QMargins(4, 4, 4, 4));
  curve_ = new QLineSeries(chart_);
  curve_->setPen(QPen(QColor(0x1f, 0x5f, 0xbf), 2));
  chart_->addSeries(curve_);
  auto* sa = new QValueAxis();
  sa->setLabelFormat("%g");
  sa->setTitleText(Text(res::kStrChartAcceleration, "Sa [g]"));
  chart_->addAxis(sa, Qt::AlignLeft);
  curve_->attachAxis(sa);
  saAxis_ = sa;
  auto* view = new QChartView(chart_, this);
  view->setRenderHint(QPainter::Antialiasing);
  view->setMinimumSize(440, 320);
  layout->addWidget(view);
  Redraw();
}

void SpectrumChart::Plot(const std::vector<fmSpectrumPoint>& points, const std::string& title) {
  points_ = points;
  chart_->setTitle(QString::fromStdString(title));
  Redraw();
}

void SpectrumChart::SetLogScale(bool log) {
  if (log == log_) return;
  log_ = log;
  Redraw();
}

int SpectrumChart::CurvePointCount() const { return static_cast<int>(curve_->count()); }

std::string SpectrumChart::Title() const { return chart_->title().toStdString(); }

void SpectrumChart::Redraw() {
  QList<QPointF> shown;
  shown.reserve(static_cast<qsizetype>(points_.size()));
  double maxT = 0, minT = 0, maxSa = 0;
  for (const fmSpectrumPoint& p : points_) {
    if (log_ && !(p.period > 0)) continue;
    shown.append(QPointF(p.period, p.acceleration));
    if (shown.size() == 1) minT = p.period;
    maxT = std::max(maxT, p.period);
    maxSa = std::max(maxSa, p.acceleration);
  }
  // Swap the period axis when its kind changes; a log axis cannot show 0.
  const bool wantLog = log_;
  if (!periodAxis_ || (qobject_cast<QLogValueAxis*>(periodAxis_) != nullptr) != wantLog) {
    if (periodAxis_) {
      curve_->detachAxis(periodAxis_);
      chart_->removeAxis(periodAxis_);
      delete periodAxis_;
    }
    if (wantLog) {
      auto* axis = new QLogValueAxis();
      axis->setBase(10.0);
      axis->setLabelFormat("%g");
      axis->setMinorTickCount(8);
      periodAxis_ = axis;
    } else {
      auto* axis = new QValueAxis();
      axis->setLabelFormat("%g");
      periodAxis_ = axis;
    }
    periodAxis_->setTitleText(Text(res::kStrChartPeriod, "Period [sec]"));
    chart_->addAxis(periodAxis_, Qt::AlignBottom);
    curve_->attachAxis(periodAxis_);
  }
  curve_->replace(shown);
  if (shown.isEmpty()) {
    periodAxis_->setRange(wantLog ? 0.01 : 0.0, wantLog ? 10.0 : 1.0);
    saAxis_->setRange(0.0, 1.0);
    return;
  }
  if (wantLog) {
    periodAxis_->setRange(std::pow(10.0, std::floor(std::log10(minT))), std::pow(10.0, std::ceil(std::log10(maxT))));
  } else {
    auto* axis = static_cast<QValueAxis*>(periodAxis_);
    axis->setRange(0.0, maxT > 0 ? maxT : 1.0);
    axis->applyNiceNumbers();
  }
  auto* sa = static_cast<QValueAxis*>(saAxis_);
  sa->setRange(0.0, maxSa > 0 ? maxSa * 1.05 : 1.0);
  sa->applyNiceNumbers();
}
