#include "dialogs/loads/CGenerateResponseSpectrumDlg.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QVBoxLayout>
#include <optional>

#include "dialogs/frame/DataExchange.h"
#include "dialogs/loads/SpectrumChart.h"
#include "resources/spectra_ids.h"
#include "tools/parse.h"

using namespace res;

namespace {

constexpr char kGrounds[] = "ABCDE";

void FillCombo(QComboBox* combo, int count, const std::function<QString(int)>& text) {
  if (!combo) return;
  combo->clear();
  for (int i = 0; i < count; ++i) combo->addItem(text(i));
}

}  // namespace

CGenerateResponseSpectrumDlg::CGenerateResponseSpectrumDlg(QWidget* pParent)
    : CDialog(kIddGenerateResponseSpectrum, pParent) {
  OnCommand(IDOK, [this] { OnBnClickedOk(); });
  OnSelChange(kCtlSpecCode, [this] { OnSelChangeCode(); });
  for (int id : {kCtlSpecType, kCtlSpecGround}) OnSelChange(id, [this] { UpdatePreview(); });
  for (int id : {kCtlSpecValue1, kCtlSpecValue2, kCtlSpecTl, kCtlSpecAg, kCtlSpecImportance, kCtlSpecDamping})
    OnEditChange(id, [this] { UpdatePreview(); });
  OnCommand(kCtlSpecLogScale, [this] { UpdatePreview(); });
}

BOOL CGenerateResponseSpectrumDlg::OnInitDialog() {
  FillCombo(Item<QComboBox>(kCtlSpecCode), model::kSpectrumCodeCount, [](int i) {
    return QString::fromStdString(LoadStringOr(kStrSpecCodeFirst + i, model::SpectrumCodeName(i)));
  });
  FillCombo(Item<QComboBox>(kCtlSpecType), 2, [](int i) {
    return QString::fromStdString(LoadStringOr(kStrSpecTypeFirst + i, i == 0 ? "Type 1" : "Type 2"));
  });
  FillCombo(Item<QComboBox>(kCtlSpecGround), 5, [](int i) { return QString(QChar(kGrounds[i])); });
  CDialog::OnInitDialog();
  if (auto* place = Item<QFrame>(kCtlSpecChart)) {
    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    chart_ = new SpectrumChart(place);
    layout->addWidget(chart_);
  }
  ShowCodeControls();
  UpdatePreview();
  return 1;
}

void CGenerateResponseSpectrumDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_CBIndex(pDX, kCtlSpecCode, m_nCode);
  if (pDX->m_bSaveAndValidate && m_nCode < 0) pDX->Fail("Please select an item from the list.");
  const bool ec8 = m_nCode == model::kEurocode8;
  // Only the fields of the chosen code are read: a stale text in a disabled field must
  // not hold the user up.
  if (!pDX->m_bSaveAndValidate || !ec8) {
    DDX_Text(pDX, kCtlSpecValue1, m_dValue1);
    DDX_Text(pDX, kCtlSpecValue2, m_dValue2);
  }
  if (!pDX->m_bSaveAndValidate || (m_nCode >= model::kAsce2005 && m_nCode <= model::kAsce2016))
    DDX_Text(pDX, kCtlSpecTl, m_dTL);
  if (!pDX->m_bSaveAndValidate || ec8) {
    DDX_CBIndex(pDX, kCtlSpecType, m_nEc8Type);
    DDX_CBIndex(pDX, kCtlSpecGround, m_nGround);
    DDX_Text(pDX, kCtlSpecAg, m_dAg);
    DDX_Text(pDX, kCtlSpecImportance, m_dImportance);
    DDX_Text(pDX, kCtlSpecDamping, m_dDamping);
  }
  DDX_Check(pDX, kCtlSpecLogScale, m_bLogScale);
}

model::SpectrumInput CGenerateResponseSpectrumDlg::InputFromMembers() const {
  model::SpectrumInput in;
  in.code = m_nCode;
  in.value1 = m_dValue1;
  in.value2 = m_dValue2;
  in.tl = m_dTL;
  in.ec8Type = m_nEc8Type + 1;
  in.ground = m_nGround >= 0 && m_nGround < 5 ? kGrounds[m_nGround] : '?';
  in.ag = m_dAg;
  in.importance = m_dImportance;
  in.damping = m_dDamping;
  return in;
}

int CGenerateResponseSpectrumDlg::FieldControl(model::SpectrumField field) const {
  using F = model::SpectrumField;
  switch (field) {
    case F::Code: return kCtlSpecCode;
    case F::Value1: return kCtlSpecValue1;
    case F::Value2: return kCtlSpecValue2;
    case F::Tl: return kCtlSpecTl;
    case F::Type: return kCtlSpecType;
    case F::Ground: return kCtlSpecGround;
    case F::Ag: return kCtlSpecAg;
    case F::Importance: return kCtlSpecImportance;
    case F::Damping: return kCtlSpecDamping;
    case F::None: break;
  }
  return 0;
}

// The value captions follow the code: Ca and Cv for UBC 97, SDS and SD1 for the others;
// only the chosen code's fields take input.
void CGenerateResponseSpectrumDlg::ShowCodeControls() {
  const int code = Item<QComboBox>(kCtlSpecCode) ? Item<QComboBox>(kCtlSpecCode)->currentIndex() : m_nCode;
  const bool ubc = code == model::kUbc97, ec8 = code == model::kEurocode8;
  const bool asce = code >= model::kAsce2005 && code <= model::kAsce2016;
  SetDlgItemText(kCtlSpecValue1Text, ubc ? LoadStringOr(kStrSpecCa, "Ca:") : LoadStringOr(kStrSpecSds, "SDS:"));
  SetDlgItemText(kCtlSpecValue2Text, ubc ? LoadStringOr(kStrSpecCv, "Cv:") : LoadStringOr(kStrSpecSd1, "SD1:"));
  for (int id : {kCtlSpecValue1Text, kCtlSpecValue1, kCtlSpecValue2Text, kCtlSpecValue2}) EnableDlgItem(id, !ec8);
  for (int id : {kCtlSpecTlText, kCtlSpecTl, kCtlSpecTlUnit}) EnableDlgItem(id, asce);
  EnableDlgItem(kCtlSpecEc8Group, ec8);
}

void CGenerateResponseSpectrumDlg::OnSelChangeCode() {
  ShowCodeControls();
  UpdatePreview();
}

void CGenerateResponseSpectrumDlg::UpdatePreview() {
  if (!chart_) return;
  // Read the controls without the exchange's messages: this runs at every keystroke.
  model::SpectrumInput in = InputFromMembers();
  std::string unreadable;
  auto read = [&](int id, double& value, const char* caption) {
    if (const auto v = tools::ParseDouble(GetDlgItemText(id)))
      value = *v;
    else if (unreadable.empty())
      unreadable = std::string(caption) + " is not a number.";
  };
  if (auto* code = Item<QComboBox>(kCtlSpecCode)) in.code = code->currentIndex();
  const bool ec8 = in.code == model::kEurocode8;
  if (ec8) {
    if (auto* t = Item<QComboBox>(kCtlSpecType)) in.ec8Type = t->currentIndex() + 1;
    if (auto* g = Item<QComboBox>(kCtlSpecGround); g && g->currentIndex() >= 0 && g->currentIndex() < 5)
      in.ground = kGrounds[g->currentIndex()];
    read(kCtlSpecAg, in.ag, "agR");
    read(kCtlSpecImportance, in.importance, "The importance factor");
    read(kCtlSpecDamping, in.damping, "The damping");
  } else {
    const bool ubc = in.code == model::kUbc97;
    read(kCtlSpecValue1, in.value1, ubc ? "Ca" : "SDS");
    read(kCtlSpecValue2, in.value2, ubc ? "Cv" : "SD1");
    if (in.code >= model::kAsce2005 && in.code <= model::kAsce2016) read(kCtlSpecTl, in.tl, "TL");
  }
  if (auto* log = Item<QCheckBox>(kCtlSpecLogScale)) chart_->SetLogScale(log->isChecked());
  if (!unreadable.empty()) {
    chart_->Plot({}, "");
    SetDlgItemText(kCtlSpecStatus, unreadable);
    return;
  }
  const model::SpectrumResult r = model::GenerateResponseSpectrum(in);
  chart_->Plot(r.spectrum.points, r.spectrum.name);
  SetDlgItemText(kCtlSpecStatus, r.ok() ? std::to_string(r.spectrum.points.size()) + " points" : r.message);
}

void CGenerateResponseSpectrumDlg::OnBnClickedOk() {
  if (!UpdateData(1)) return;
  model::SpectrumResult r = model::GenerateResponseSpectrum(InputFromMembers());
  if (!r.ok()) {
    MessageBox(r.message);
    if (auto* edit = Item<QLineEdit>(FieldControl(r.field))) {
      edit->setFocus();
      edit->selectAll();
    }
    return;
  }
  m_spectrum = std::move(r.spectrum);
  m_bGenerated = 1;
  EndDialog(IDOK);
}
