#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "dialogs/frame/CDialog.h"
#include "dialogs/results/envelope_tools.h"

class QChart;
class QChartView;
class QLineSeries;

// The envelope of one force or moment along one member, over the load cases and
// combinations chosen for envelopes: the largest and smallest value at each station, drawn
// against the distance from the start node. The mouse over a point names the combination
// that governs it; "Print..." prints the diagram.
class CBeamEnvelopDiagramDlg : public CDialog {
 public:
  explicit CBeamEnvelopDiagramDlg(QWidget* pParent = nullptr);
  static const frame::Form<CBeamEnvelopDiagramDlg>& Description();

  const CfmStruct* m_pStruct = nullptr;  // not owned
  int32_t m_nMember = 0;                 // the member's number; the first with results when not found
  int32_t m_nForce = 5;                  // 0 Fx ... 5 Mz

  int32_t m_nMemberIndex = 0;  // exchanged with the member drop-down

  const results::EnvelopeCurve& Curve() const { return curve_; }
  QChart* Chart() const { return chart_; }
  std::string StatusText() const;
  // What the mouse over the curve does: names the governing combination of the station
  // nearest to the distance.
  void HoverAt(double distance, bool max);
  // Asks for the printer and prints the diagram; false when cancelled.
  bool Print();

 protected:
  BOOL OnInitDialog() override;
  void OnSelchange();

 private:
  void Redraw();

  std::vector<int32_t> members_;
  results::EnvelopeCurve curve_;
  QChart* chart_ = nullptr;
  QChartView* view_ = nullptr;
  QLineSeries* maxSeries_ = nullptr;
  QLineSeries* minSeries_ = nullptr;
};
