#pragma once
#include <QPointF>
#include <QWidget>
#include <optional>

#include "dialogs/design/effective_length.h"

class QChart;
class QLineSeries;
class QScatterSeries;

// f(K) of the braced and the sway equation over their brackets, one chart each, with the
// zero line and the root marked, so the user sees where the curve changes sign or why it
// does not.
class KFactorChart : public QWidget {
 public:
  explicit KFactorChart(QWidget* parent = nullptr);

  // Draws both curves for these ratios; a result marks its root or says it has none.
  // Without results (before Compute) only the curves are drawn.
  void Plot(double ga, double gb, const design::KResult* braced, const design::KResult* unbraced);

  QChart* Chart(design::FrameKind kind) const;
  // Where the root is marked, if it is.
  std::optional<QPointF> RootMarker(design::FrameKind kind) const;
  // The number of points drawn of f(K).
  int CurvePointCount(design::FrameKind kind) const;

 private:
  struct Pane {
    QChart* chart = nullptr;
    QLineSeries* curve = nullptr;
    QLineSeries* zero = nullptr;
    QScatterSeries* root = nullptr;
  };
  Pane MakePane(design::FrameKind kind);
  void PlotPane(Pane& pane, design::FrameKind kind, double ga, double gb, const design::KResult* result);
  Pane& PaneOf(design::FrameKind kind) { return kind == design::FrameKind::Braced ? braced_ : unbraced_; }
  const Pane& PaneOf(design::FrameKind kind) const {
    return kind == design::FrameKind::Braced ? braced_ : unbraced_;
  }

  Pane braced_, unbraced_;
};
