#include "dialogs/design/KFactorChart.h"

#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QLogValueAxis>
#include <QPen>
#include <QScatterSeries>
#include <QVBoxLayout>
#include <QValueAxis>

#include "resources/design_ids.h"
#include "resources/resources.h"
#include "tools/format.h"

using design::FrameKind;

namespace {

constexpr int kSamples = 240;

// The K axis shows the bracket up to the limits it stays clear of.
design::KBracket AxisSpan(FrameKind kind) {
  return kind == FrameKind::Braced ? design::KBracket{0.5, 1.0} : design::KBracket{1.0, design::kUnbracedBracket.upper};
}

QString Text(int stringId, const char* fallback) { return QString::fromStdString(res::LoadStringOr(stringId, fallback)); }

}  // namespace

KFactorChart::KFactorChart(QWidget* parent) : QWidget(parent) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  braced_ = MakePane(FrameKind::Braced);
  unbraced_ = MakePane(FrameKind::Unbraced);
  for (QChart* chart : {braced_.chart, unbraced_.chart}) {
    auto* view = new QChartView(chart, this);
    view->setRenderHint(QPainter::Antialiasing);
    view->setMinimumSize(420, 220);
    layout->addWidget(view);
  }
}

KFactorChart::Pane KFactorChart::MakePane(FrameKind kind) {
  Pane p;
  p.chart = new QChart();
  p.chart->legend()->hide();
  p.chart->setMargins(QMargins(4, 4, 4, 4));
  p.curve = new QLineSeries(p.chart);
  p.curve->setPen(QPen(QColor(0x1f, 0x5f, 0xbf), 2));
  p.zero = new QLineSeries(p.chart);
  p.zero->setPen(QPen(Qt::gray, 1, Qt::DashLine));
  p.root = new QScatterSeries(p.chart);
  p.root->setMarkerSize(11);
  p.root->setColor(QColor(0xd0, 0x20, 0x20));
  p.root->setBorderColor(Qt::white);
  for (QAbstractSeries* s : {static_cast<QAbstractSeries*>(p.zero), static_cast<QAbstractSeries*>(p.curve),
                             static_cast<QAbstractSeries*>(p.root)})
    p.chart->addSeries(s);

  // The sway bracket runs from 1.01 to 20 and its roots crowd near 1: a log scale of K
  // gives that end room.
  QAbstractAxis* kAxis = nullptr;
  const design::KBracket span = AxisSpan(kind);
  if (kind == FrameKind::Unbraced) {
    auto* axis = new QLogValueAxis();
    axis->setBase(2.0);
    axis->setRange(span.lower, span.upper);
    axis->setLabelFormat("%g");
    axis->setMinorTickCount(3);
    kAxis = axis;
  } else {
    auto* axis = new QValueAxis();
    axis->setRange(span.lower, span.upper);
    axis->setTickCount(6);
    axis->setLabelFormat("%.1f");
    kAxis = axis;
  }
  kAxis->setTitleText(Text(res::kStrChartAxisK, "K"));
  auto* fAxis = new QValueAxis();
  fAxis->setLabelFormat("%g");
  fAxis->setTitleText(Text(res::kStrChartAxisF, "f(K)"));
  p.chart->addAxis(kAxis, Qt::AlignBottom);
  p.chart->addAxis(fAxis, Qt::AlignLeft);
  for (QAbstractSeries* s : p.chart->series()) {
    s->attachAxis(kAxis);
    s->attachAxis(fAxis);
  }
  return p;
}

void KFactorChart::Plot(double ga, double gb, const design::KResult* braced, const design::KResult* unbraced) {
  PlotPane(braced_, FrameKind::Braced, ga, gb, braced);
  PlotPane(unbraced_, FrameKind::Unbraced, ga, gb, unbraced);
}

void KFactorChart::PlotPane(Pane& pane, FrameKind kind, double ga, double gb, const design::KResult* result) {
  const std::vector<design::CurvePoint> samples = design::SampleEquation(kind, ga, gb, kSamples);
  QList<QPointF> points;
  points.reserve(static_cast<qsizetype>(samples.size()));
  for (const auto& s : samples) points.append(QPointF(s.k, s.f));
  pane.curve->replace(points);

  const design::KBracket b = design::BracketOf(kind);
  const design::PlotRange range = design::ChoosePlotRange(samples);
  const design::KBracket span = AxisSpan(kind);
  pane.zero->replace({QPointF(span.lower, 0.0), QPointF(span.upper, 0.0)});
  if (auto* fAxis = qobject_cast<QValueAxis*>(pane.chart->axes(Qt::Vertical).value(0))) {
    fAxis->setRange(range.lower, range.upper);
    fAxis->applyNiceNumbers();
  }

  pane.root->clear();
  QString title = Text(kind == FrameKind::Braced ? res::kStrChartBraced : res::kStrChartUnbraced,
                       kind == FrameKind::Braced ? "Braced frame" : "Unbraced frame");
  title += ": ";
  if (samples.empty()) {
    title += Text(res::kStrChartUndefined, "f(K) is not defined when GA + GB = 0");
  } else if (!result) {
    title += Text(res::kStrChartPressCompute, "press Compute to solve");
  } else if (result->k) {
    pane.root->append(*result->k, 0.0);
    title += QString::fromStdString(tools::Format("K = %.2f", *result->k));
  } else {
    title += Text(res::kStrChartNoRootBetween, "no root between") +
             QString::fromStdString(tools::Format(" %.2f ", b.lower)) + Text(res::kStrChartAnd, "and") +
             QString::fromStdString(tools::Format(" %.2f", b.upper));
  }
  pane.chart->setTitle(title);
}

QChart* KFactorChart::Chart(FrameKind kind) const { return PaneOf(kind).chart; }

std::optional<QPointF> KFactorChart::RootMarker(FrameKind kind) const {
  const Pane& p = PaneOf(kind);
  if (p.root->count() == 0) return std::nullopt;
  return p.root->at(0);
}

int KFactorChart::CurvePointCount(FrameKind kind) const { return static_cast<int>(PaneOf(kind).curve->count()); }
