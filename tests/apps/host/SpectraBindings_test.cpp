#include <QComboBox>
#include <QLineEdit>

#include "apps/host/DialogRunner.h"
#include "dialogs/frame/Form.h"
#include "dialogs/loads/CGenerateResponseSpectrumDlg.h"
#include "dialogs/loads/CResponseSpectrumDataDlg.h"
#include "dialogs/loads/SpectraDialogTest.h"
#include "resources/spectra_ids.h"

using namespace res;

namespace {

// The generator's controls, found by the members they show.
using Gen = CGenerateResponseSpectrumDlg;
const int kCtlSpecCode = frame::IdOf(&Gen::m_nCode);

class SpectraHostTest : public SpectraDialogTest {
 protected:
  // Opens the bound dialog, lets `drive` work it, and hands the result to the host.
  bool Run(const char* className, const std::function<void(CDialog&)>& drive) {
    auto dlg = CreateBoundDialog(className, model, nullptr);
    EXPECT_TRUE(dlg);
    dlg->InitDialogForTest();
    drive(*dlg);
    return TakeBackDialogResult(className, *dlg, dlg->ModalResult(), model);
  }
  std::vector<std::string> FileNames() {
    manager.SetSpectra({});
    EXPECT_TRUE(manager.LoadFile());
    std::vector<std::string> names;
    for (const auto& s : manager.GetSpectra()) names.push_back(s.name);
    return names;
  }
  HostModel model;
};

}  // namespace

// The spectra go to the user's file and leave the model as it was; the analysis settings go to the model.
TEST_F(SpectraHostTest, SpectraToTheFileSettingsToTheModel) {
  EXPECT_FALSE(Run("CGenerateResponseSpectrumDlg", [](CDialog& d) {
    d.ChooseItem(kCtlSpecCode, 1);
    d.PressButton(IDOK);
  }));
  EXPECT_EQ(model.status, "Added IBC_2000_SDS_1_SD1_0.6 to the spectrum file");
  EXPECT_FALSE(Run("CResponseSpectrumDataDlg", [](CDialog& d) {
    EXPECT_EQ(static_cast<CResponseSpectrumDataDlg&>(d).m_otherNames, std::vector<std::string>{"IBC_2000_SDS_1_SD1_0.6"});
    d.Item<QLineEdit>(kCtlSpecName)->setText("Design");
    d.PressButton(IDOK);
  }));
  EXPECT_EQ(FileNames(), (std::vector<std::string>{"Design", "IBC_2000_SDS_1_SD1_0.6"}));
  EXPECT_FALSE(model.modified);

  EXPECT_TRUE(Run("CResponseSpectrumAnalysisDlg", [](CDialog& d) {
    EXPECT_EQ(d.Item<QComboBox>(kCtlRsaSpectrumX + 2)->currentIndex(), 0) << "a model that never chose starts on the first";
    d.ChooseItem(kCtlRsaSpectrumX, 1);
    d.PressButton(kCtlRsaPerform);
    d.PressButton(IDOK);
  }));
  EXPECT_TRUE(model.doc.spectrumAnalysis.enabled);
  EXPECT_EQ(model.doc.spectrumAnalysis.spectrum, (std::array<std::string, 3>{"IBC_2000_SDS_1_SD1_0.6", "Design", "Design"}));
  EXPECT_FALSE(Run("CResponseSpectrumAnalysisDlg", [](CDialog& d) { d.PressButton(IDOK); })) << "nothing changed";
  EXPECT_TRUE(Messages().empty());
}
