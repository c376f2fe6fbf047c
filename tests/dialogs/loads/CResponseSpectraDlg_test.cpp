#include <sys/resource.h>

#include <QLineEdit>
#include <QTreeWidget>
#include <csignal>

#include "dialogs/frame/Form.h"
#include "dialogs/loads/CGenerateResponseSpectrumDlg.h"
#include "dialogs/loads/CResponseSpectraDlg.h"
#include "dialogs/loads/CResponseSpectrumDataDlg.h"
#include "dialogs/loads/SpectraDialogTest.h"
#include "resources/spectra_ids.h"
#include "support/files.h"

using namespace res;

namespace {

// The generator's controls, found by the members they show.
using Gen = CGenerateResponseSpectrumDlg;
const int kCtlSpecCode = frame::IdOf(&Gen::m_nCode);
const int kCtlSpecValue1 = frame::IdOf(&Gen::m_dValue1);
const int kCtlSpecValue2 = frame::IdOf(&Gen::m_dValue2);

const char* const kModify =
    "Modifying an existing response spectrum may affect other Norvane models.\nAre you sure to proceed?";
const char* const kDelete =
    "Deleting an existing response spectrum may affect other Norvane models.\nAre you sure to proceed?";

class SpectraListTest : public SpectraDialogTest {
 protected:
  QTreeWidget* List() { return dlg.Item<QTreeWidget>(kCtlSpectraList); }
  // "name points" of every row.
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    for (int i = 0; i < List()->topLevelItemCount(); ++i)
      rows.push_back(List()->topLevelItem(i)->text(0).toStdString() + " " + List()->topLevelItem(i)->text(1).toStdString());
    return rows;
  }
  void Select(int row) { List()->setCurrentItem(List()->topLevelItem(row)); }
  std::vector<std::string> FileNames() {
    CResponseSpectrumManager& m = CResponseSpectrumManager::Instance();
    m.SetSpectra({});
    EXPECT_TRUE(m.LoadFile()) << m.LastError();
    std::vector<std::string> names;
    for (const auto& s : m.GetSpectra()) names.push_back(s.name);
    return names;
  }
  // The generator run by the list: choose a code and values, press OK.
  void GenerateNext(int code, const char* v1, const char* v2) {
    scripts[kIddGenerateResponseSpectrum] = [=](CDialog& d) {
      d.ChooseItem(kCtlSpecCode, code);
      d.Item<QLineEdit>(kCtlSpecValue1)->setText(v1);
      d.Item<QLineEdit>(kCtlSpecValue2)->setText(v2);
      d.PressButton(IDOK);
    };
  }
  CResponseSpectraDlg dlg;
};

const fmResponseSpectrum kFirst = model::DefaultSpectra().front();

}  // namespace

TEST_F(SpectraListTest, NewUserSeesTheDefaultAndAddsFromCodeAndFile) {
  dlg.InitDialogForTest();
  EXPECT_EQ(List()->headerItem()->text(0).toStdString(), "Spectrum Name");
  EXPECT_EQ(List()->headerItem()->text(1).toStdString(), "Number of Points");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"ASCE_2010_SDS_1_SD1_0.6_TL_8 86"}));

  GenerateNext(1, "0.8", "0.4");
  dlg.PressButton(kCtlSpectraGenerate);
  WriteFileText(dir / "site.csv", "Period,Sa\n0,0.3\n0.5,0.9\n2,0.2\n");
  prompter.QueuePath(dir / "site.csv");
  dlg.PressButton(kCtlSpectraImport);
  EXPECT_EQ(Rows(), (std::vector<std::string>{"ASCE_2010_SDS_1_SD1_0.6_TL_8 86", "IBC_2000_SDS_0.8_SD1_0.4 126",
                                               "site 3"}));
  // The same curve again, a file under a name in use, a damaged file: refused, nothing stored.
  dlg.PressButton(kCtlSpectraGenerate);
  prompter.QueuePath(dir / "site.csv");
  dlg.PressButton(kCtlSpectraImport);
  WriteFileText(dir / "bad.csv", "0,0.3\n0.5,x\n");
  prompter.QueuePath(dir / "bad.csv");
  dlg.PressButton(kCtlSpectraImport);
  EXPECT_EQ(Messages(), (std::vector<std::string>{
                            "A response spectrum named \"IBC_2000_SDS_0.8_SD1_0.4\" already exists.",
                            "A response spectrum named \"site\" already exists.",
                            dir / "bad.csv" + ", line 2: the acceleration \"x\" is not a number"}));
  EXPECT_EQ(FileNames(), (std::vector<std::string>{"ASCE_2010_SDS_1_SD1_0.6_TL_8", "IBC_2000_SDS_0.8_SD1_0.4", "site"}));
}

TEST_F(SpectraListTest, ModifyAndDeleteAskFirstAndTheFirstStays) {
  Store({kFirst, {"Two", {{0, 1}, {1, 0.5}}}, {"Three", {{0, 1}}}});
  dlg.InitDialogForTest();
  scripts[kIddResponseSpectrumData] = [](CDialog& d) {
    auto& data = static_cast<CResponseSpectrumDataDlg&>(d);
    EXPECT_EQ(data.m_otherNames, (std::vector<std::string>{"ASCE_2010_SDS_1_SD1_0.6_TL_8", "Three"}));
    data.Item<QLineEdit>(kCtlSpecName)->setText("Two, edited");
    data.Spread().sheet().SetData(2, 2, "0.75");
    data.PressButton(IDOK);
  };
  Select(1);
  prompter.QueueAnswer(false);
  dlg.PressButton(kCtlSpectraModify);
  prompter.QueueAnswer(true);
  dlg.PressButton(kCtlSpectraModify);
  Select(0);
  dlg.PressButton(kCtlSpectraDelete);
  Select(2);
  prompter.QueueAnswer(false);
  dlg.PressButton(kCtlSpectraDelete);
  prompter.QueueAnswer(true);
  dlg.PressButton(kCtlSpectraDelete);
  EXPECT_EQ(Messages(), (std::vector<std::string>{kModify, kModify, "You may not delete the first response spectrum.",
                                                   kDelete, kDelete}));
  EXPECT_EQ(Rows(), (std::vector<std::string>{"ASCE_2010_SDS_1_SD1_0.6_TL_8 86", "Two, edited 2"}));
  ASSERT_EQ(FileNames(), (std::vector<std::string>{"ASCE_2010_SDS_1_SD1_0.6_TL_8", "Two, edited"}));
  EXPECT_EQ(manager.GetSpectra()[1].points, (std::vector<fmSpectrumPoint>{{0, 1}, {1, 0.75}}));
}

// A save that fails half-way leaves the old file and the old list, and says so.
TEST_F(SpectraListTest, FailedSaveKeepsTheOldFileAndList) {
  Store({kFirst});
  const std::string before = ReadFileText(File());
  dlg.InitDialogForTest();
  GenerateNext(0, "0.4", "0.56");
  struct rlimit old {};
  getrlimit(RLIMIT_FSIZE, &old);
  const struct rlimit small {before.size() + 64, old.rlim_max};
  const auto previousHandler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  dlg.PressButton(kCtlSpectraGenerate);
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, previousHandler);
  EXPECT_EQ(Messages(), (std::vector<std::string>{"Error saving response spectrum data to file"}));
  EXPECT_EQ(ReadFileText(File()), before);
  EXPECT_EQ(Rows(), (std::vector<std::string>{"ASCE_2010_SDS_1_SD1_0.6_TL_8 86"}));
  EXPECT_EQ(manager.GetSpectra().size(), 1u);
}

TEST_F(SpectraListTest, DamagedFileIsShownAndOffersNoChanges) {
  WriteFileText(File(), "norvane-response-spectra 1\nspectrum A\n0\t1\n0\t2\nend\n");
  dlg.InitDialogForTest();
  EXPECT_EQ(Messages(), (std::vector<std::string>{File() + ", line 4: the period does not increase"}));
  for (int id : {kCtlSpectraGenerate, kCtlSpectraImport, kCtlSpectraModify, kCtlSpectraDelete})
    EXPECT_FALSE(dlg.GetDlgItem(id)->isEnabled()) << id;
  EXPECT_EQ(ReadFileText(File()), "norvane-response-spectra 1\nspectrum A\n0\t1\n0\t2\nend\n");
}
