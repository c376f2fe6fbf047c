#include <QChart>
#include <QComboBox>
#include <QLineSeries>
#include <QPushButton>
#include <filesystem>

#include "dialogs/frame/Form.h"
#include "dialogs/results/CBeamEnvelopDiagramDlg.h"
#include "dialogs/results/CEnvelopeReportDlg.h"
#include "dialogs/results/CReportDlg.h"
#include "dialogs/results/CResultsDlg.h"
#include "dialogs/results/element_sample.h"
#include "resources/results_ids.h"
#include "support/DialogTest.h"
#include "support/NestedDialogs.h"
#include "support/TempDir.h"

namespace {

QLineSeries* Series(const QChart* chart, const char* name) {
  for (QAbstractSeries* s : chart->series())
    if (s->name() == name) return qobject_cast<QLineSeries*>(s);
  return nullptr;
}

}  // namespace

using DiagramTest = DialogTest;

// Member 10's Mz over Dead (1) and the formed D+W (3): max 6 at the start by Dead, 19.8 at the
// end by D+W.
TEST_F(DiagramTest, TheDiagramDrawsTheEnvelopeAndNamesTheGoverningCombination) {
  const CfmStruct s = ElementSample();
  CBeamEnvelopDiagramDlg dlg;
  dlg.m_pStruct = &s;
  dlg.m_nMember = 10;
  dlg.InitDialogForTest();
  ASSERT_NE(dlg.Chart(), nullptr);
  QLineSeries* max = Series(dlg.Chart(), "max");
  QLineSeries* min = Series(dlg.Chart(), "min");
  ASSERT_TRUE(max && min);
  ASSERT_EQ(max->count(), 3);
  EXPECT_DOUBLE_EQ(max->at(0).y(), 6);
  EXPECT_DOUBLE_EQ(max->at(2).x(), 12);
  EXPECT_DOUBLE_EQ(max->at(2).y(), 19.8);
  EXPECT_DOUBLE_EQ(min->at(0).y(), -1.8);
  EXPECT_EQ(dlg.Chart()->title().toStdString(), "Member 10: Mz (Major Moment) envelope");

  dlg.HoverAt(11.5, true);
  EXPECT_EQ(dlg.StatusText(), "max Mz (Major Moment) = 19.800 [kip-ft] at 12.000 [ft], Comb# 3: D+W");
  emit min->hovered(QPointF(0.2, -1.8), true);
  EXPECT_EQ(dlg.StatusText(), "min Mz (Major Moment) = -1.800 [kip-ft] at 0.000 [ft], Comb# 3: D+W");

  // Another force: Fx of member 11 (the second in the list).
  dlg.ChooseItem(frame::IdOf(&CBeamEnvelopDiagramDlg::m_nMemberIndex), 1);
  dlg.ChooseItem(frame::IdOf(&CBeamEnvelopDiagramDlg::m_nForce), 0);
  EXPECT_EQ(dlg.Curve().member, 11);
  ASSERT_EQ(max->count(), 2);
  EXPECT_DOUBLE_EQ(max->at(0).y(), -20);   // Dead
  EXPECT_DOUBLE_EQ(min->at(0).y(), -26);   // 1.2 × -20 - 2
}

TEST_F(DiagramTest, WithoutEnvelopeResultsTheDiagramIsEmptyAndSaysSo) {
  CfmStruct s = ElementSample();
  s.m_EnvelopeCombinations.clear();
  CBeamEnvelopDiagramDlg dlg;
  dlg.m_pStruct = &s;
  dlg.InitDialogForTest();
  EXPECT_TRUE(dlg.Curve().empty());
  EXPECT_EQ(Series(dlg.Chart(), "max")->count(), 0);
  EXPECT_EQ(dlg.StatusText(), "No member results in the load cases and combinations chosen for envelopes.");
}

TEST_F(DiagramTest, PrintingWritesTheDiagramToTheChosenFile) {
  const CfmStruct s = ElementSample();
  CBeamEnvelopDiagramDlg dlg;
  dlg.m_pStruct = &s;
  dlg.InitDialogForTest();
  TempDir dir;
  const std::string pdf = dir / "envelope.pdf";
  prompter.QueuePath(pdf);
  dlg.PressButton(res::kCtlEnvelopePrint);
  ASSERT_TRUE(std::filesystem::exists(pdf));
  EXPECT_GT(std::filesystem::file_size(pdf), 1000u);
  prompter.QueueCancel();
  EXPECT_FALSE(dlg.Print());
}

TEST_F(DiagramTest, TheEnvelopeListIsWrittenOnOkAndLeftAloneOnCancel) {
  const std::vector<fmLoadCase> cases = {fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(2, "Live", "Live-L")};
  std::vector<fmLoadComb> combs = {fmLoadComb("D+L")};
  std::vector<std::string> chosen = {"dead"};
  {
    CEnvelopeReportDlg dlg;
    dlg.m_pLoadCases = &cases;
    dlg.m_pLoadCombs = &combs;
    dlg.m_pEnvelopeCombinations = &chosen;
    dlg.InitDialogForTest();
    ASSERT_EQ(dlg.LineCount(), 3);
    EXPECT_TRUE(dlg.IsChecked(0));
    EXPECT_FALSE(dlg.IsChecked(2));
    dlg.SetChecked(0, false);
    dlg.SetChecked(2, true);
    dlg.PressButton(IDCANCEL);
    EXPECT_EQ(chosen, std::vector<std::string>{"dead"});
  }
  CEnvelopeReportDlg dlg;
  dlg.m_pLoadCases = &cases;
  dlg.m_pLoadCombs = &combs;
  dlg.m_pEnvelopeCombinations = &chosen;
  dlg.InitDialogForTest();
  dlg.SetChecked(2, true);
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(chosen, (std::vector<std::string>{"Dead", "D+L"}));

  CEnvelopeReportDlg locked;
  locked.m_pLoadCases = &cases;
  locked.m_pLoadCombs = &combs;
  locked.m_pEnvelopeCombinations = &chosen;
  locked.m_bModelLocked = 1;
  locked.InitDialogForTest();
  locked.SetChecked(1, true);
  locked.PressButton(IDOK);
  EXPECT_EQ(chosen, (std::vector<std::string>{"Dead", "D+L"}));
}

TEST_F(DiagramTest, TheReportPickerOpensTheResultsDialogOnTheChosenKindAndCase) {
  CfmStruct s = ElementSample();
  CReportDlg dlg;
  dlg.m_pStruct = &s;
  dlg.m_nReportType = 7;
  dlg.InitDialogForTest();
  auto* kinds = dlg.Item<QComboBox>(frame::IdOf(&CReportDlg::m_nKindIndex));
  auto* cases = dlg.Item<QComboBox>(frame::IdOf(&CReportDlg::m_nCombination));
  ASSERT_TRUE(kinds && cases);
  EXPECT_EQ(kinds->currentText().toStdString(), "7: Member Segmental Results");
  ASSERT_EQ(cases->count(), 3);
  EXPECT_EQ(cases->itemText(2).toStdString(), "3: D+W");
  // A mode kind lists the modes; a kind that reads neither leaves the list empty.
  const auto& all = CReportDlg::Kinds();
  dlg.ChooseItem(frame::IdOf(&CReportDlg::m_nKindIndex),
                 static_cast<int>(std::find(all.begin(), all.end(), 21) - all.begin()));
  EXPECT_EQ(cases->count(), 2);
  EXPECT_EQ(cases->itemText(0).toStdString().rfind("Mode-1: (Period=", 0), 0u);
  dlg.ChooseItem(frame::IdOf(&CReportDlg::m_nKindIndex),
                 static_cast<int>(std::find(all.begin(), all.end(), 28) - all.begin()));
  EXPECT_FALSE(cases->isEnabled());

  dlg.ChooseItem(frame::IdOf(&CReportDlg::m_nKindIndex),
                 static_cast<int>(std::find(all.begin(), all.end(), 7) - all.begin()));
  dlg.ChooseItem(frame::IdOf(&CReportDlg::m_nCombination), 2);
  NestedDialogs nested;
  std::string title;
  int rows = 0;
  nested.scripts[res::kIddResults] = [&](CDialog& d) {
    auto& results = dynamic_cast<CResultsDlg&>(d);
    title = results.windowTitle().toStdString();
    rows = results.Spread().sheet().MaxRows();
    results.EndDialog(IDCANCEL);
  };
  dlg.PressButton(IDOK);
  EXPECT_EQ(nested.opened[res::kIddResults], 1);
  EXPECT_EQ(title, "Member Segmental Results - [D+W]");
  EXPECT_EQ(rows, 4 + 3);
  EXPECT_EQ(dlg.m_nReportType, 7);
}

// The results dialog says why a principal report of a response-spectrum combination stays
// empty, and stays open.
TEST_F(DiagramTest, TheResultsDialogShowsTheRefusalOfPrincipalResults) {
  CfmStruct s = ElementSample();
  CResultsDlg dlg;
  dlg.m_pStruct = &s;
  dlg.m_nReportType = 17;
  dlg.m_nCombination = 2;
  dlg.InitDialogForTest();
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_EQ(Messages()[0],
            "Principal stresses are not available to load combination that contains response spectrum analysis "
            "results.");
  EXPECT_EQ(dlg.Spread().sheet().MaxRows(), 0);
  EXPECT_EQ(dlg.ModalResult(), 0);
  prompter.Clear();
  dlg.ChooseItem(res::kCtlResultsCombo, 0);  // a load case
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(dlg.Spread().sheet().GetData(3, 1), "10.000");
}
