#pragma once
#include <QWidget>
#include <string>
#include <vector>

#include "model/response_spectrum.h"

class QChart;
class QLineSeries;
class QAbstractAxis;

// A response spectrum drawn as Sa against period, on a linear or a logarithmic period axis.
class SpectrumChart : public QWidget {
 public:
  explicit SpectrumChart(QWidget* parent = nullptr);

  // Draws the points under the title; no points leave the chart empty with the title.
  void Plot(const std::vector<fmSpectrumPoint>& points, const std::string& title);
  // On a logarithmic axis the point at period 0 has no place and is left out.
  void SetLogScale(bool log);
  bool IsLogScale() const { return log_; }

  QChart* Chart() const { return chart_; }
  int CurvePointCount() const;
  std::string Title() const;

 private:
  void Redraw();

  QChart* chart_ = nullptr;
  QLineSeries* curve_ = nullptr;
  QAbstractAxis* periodAxis_ = nullptr;
  QAbstractAxis* saAxis_ = nullptr;
  std::vector<fmSpectrumPoint> points_;
  bool log_ = false;
};
