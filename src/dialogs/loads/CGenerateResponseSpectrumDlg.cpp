#include "dialogs/loads/CGenerateResponseSpectrumDlg.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QVBoxLayout>
#include <optional>

#include "dialogs/frame/Form.h"
#include "dialogs/loads/SpectrumChart.h"
#include "resources/spectra_ids.h"
#include "tools/parse.h"

using namespace res;

namespace {

using D = CGenerateResponseSpectrumDlg;
constexpr char kGrounds[] = "ABCDE";

template <class T>
int Ctl(T D::* member) {
  return frame::IdOf(member);
}
bool Ec8(const D& d) { return d.m_nCode == model::kEurocode8; }
bool Asce(const D& d) { return d.m_nCode >= model::kAsce2005 && d.m_nCode <= model::kAsce2016; }

}  // namespace

// The inputs on the left, the curve on the right; the line under the curve says why there
// is none while the values are not usable. Only the fields of the chosen code are read: a
// stale text in a disabled field must not hold the user up.
const frame::Form<CGenerateResponseSpectrumDlg>& CGenerateResponseSpectrumDlg::Description() {
  using F = frame::Field<D>;
  const auto notEc8 = [](const D& d) { return !Ec8(d); };
  static const frame::Form<D> form(
      {.templateId = kIddGenerateResponseSpectrum, .caption = "Generate Response Spectrum", .minWidth = 900,
       .minHeight = 470, .numberFlags = kNarrow, .stretchColumn = false},
      {
          F::DropIndex("Design code:", &D::m_nCode)
              .Items({"UBC 97", "IBC 2000", "ASCE 2005", "ASCE 2010", "ASCE 7-16", "Eurocode 8"}).Span(2),
          F::Real("SDS:", &D::m_dValue1).ReadWhen(notEc8),
          F::Real("SD1:", &D::m_dValue2).ReadWhen(notEc8),
          F::Real("TL:", &D::m_dTL).Suffix("sec").ReadWhen(Asce),
          F::Group("Eurocode 8 (EN 1998-1, horizontal elastic spectrum)").Id(kCtlSpecEc8Group).Span(3),
          F::DropIndex("Spectrum type:", &D::m_nEc8Type).Items({"Type 1", "Type 2"}).Span(2).ReadWhen(Ec8),
          F::DropIndex("Ground type:", &D::m_nGround).Items({"A", "B", "C", "D", "E"}).Span(2).ReadWhen(Ec8),
          F::Real("agR [g]:", &D::m_dAg).ReadWhen(Ec8),
          F::Real("Importance factor:", &D::m_dImportance).ReadWhen(Ec8),
          F::Real("Viscous damping:", &D::m_dDamping).Suffix("%").ReadWhen(Ec8),
          F::EndGroup(),
          F::Check("Logarithmic period axis", &D::m_bLogScale),
          F::Static("").Flags(kStretchRow),
          F::Grid().Id(kCtlSpecChart).At(0, 3, 7, 1).Stretch(kStretchCol),
          F::Static("").Id(kCtlSpecStatus).At(7, 0).Span(4),
      });
  return form;
}

CGenerateResponseSpectrumDlg::CGenerateResponseSpectrumDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnSelChange(Ctl(&D::m_nCode), [this] { OnSelChangeCode(); });
  for (int id : {Ctl(&D::m_nEc8Type), Ctl(&D::m_nGround)}) OnSelChange(id, [this] { UpdatePreview(); });
  for (auto m : {&D::m_dValue1, &D::m_dValue2, &D::m_dTL, &D::m_dAg, &D::m_dImportance, &D::m_dDamping})
    OnEditChange(Ctl(m), [this] { UpdatePreview(); });
  OnCommand(Ctl(&D::m_bLogScale), [this] { UpdatePreview(); });
}

BOOL CGenerateResponseSpectrumDlg::OnInitDialog() {
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
    case F::Code: return Ctl(&D::m_nCode);
    case F::Value1: return Ctl(&D::m_dValue1);
    case F::Value2: return Ctl(&D::m_dValue2);
    case F::Tl: return Ctl(&D::m_dTL);
    case F::Type: return Ctl(&D::m_nEc8Type);
    case F::Ground: return Ctl(&D::m_nGround);
    case F::Ag: return Ctl(&D::m_dAg);
    case F::Importance: return Ctl(&D::m_dImportance);
    case F::Damping: return Ctl(&D::m_dDamping);
    case F::None: break;
  }
  return 0;
}

// The value captions follow the code: Ca and Cv for UBC 97, SDS and SD1 for the others;
// only the chosen code's fields take input.
void CGenerateResponseSpectrumDlg::ShowCodeControls() {
  const auto* combo = Item<QComboBox>(Ctl(&D::m_nCode));
  const int code = combo ? combo->currentIndex() : m_nCode;
  const bool ubc = code == model::kUbc97, ec8 = code == model::kEurocode8;
  const bool asce = code >= model::kAsce2005 && code <= model::kAsce2016;
  const frame::FieldLayout &value1 = frame::FieldOf(&D::m_dValue1), &value2 = frame::FieldOf(&D::m_dValue2),
                           &tl = frame::FieldOf(&D::m_dTL);
  SetDlgItemText(value1.labelId, ubc ? LoadStringOr(kStrSpecCa, "Ca:") : LoadStringOr(kStrSpecSds, "SDS:"));
  SetDlgItemText(value2.labelId, ubc ? LoadStringOr(kStrSpecCv, "Cv:") : LoadStringOr(kStrSpecSd1, "SD1:"));
  for (int id : {value1.labelId, value1.id, value2.labelId, value2.id}) EnableDlgItem(id, !ec8);
  for (int id : {tl.labelId, tl.id, tl.suffixId}) EnableDlgItem(id, asce);
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
  if (auto* code = Item<QComboBox>(Ctl(&D::m_nCode))) in.code = code->currentIndex();
  const bool ec8 = in.code == model::kEurocode8;
  if (ec8) {
    if (auto* t = Item<QComboBox>(Ctl(&D::m_nEc8Type))) in.ec8Type = t->currentIndex() + 1;
    if (auto* g = Item<QComboBox>(Ctl(&D::m_nGround)); g && g->currentIndex() >= 0 && g->currentIndex() < 5)
      in.ground = kGrounds[g->currentIndex()];
    read(Ctl(&D::m_dAg), in.ag, "agR");
    read(Ctl(&D::m_dImportance), in.importance, "The importance factor");
    read(Ctl(&D::m_dDamping), in.damping, "The damping");
  } else {
    const bool ubc = in.code == model::kUbc97;
    read(Ctl(&D::m_dValue1), in.value1, ubc ? "Ca" : "SDS");
    read(Ctl(&D::m_dValue2), in.value2, ubc ? "Cv" : "SD1");
    if (in.code >= model::kAsce2005 && in.code <= model::kAsce2016) read(Ctl(&D::m_dTL), in.tl, "TL");
  }
  if (auto* log = Item<QCheckBox>(Ctl(&D::m_bLogScale))) chart_->SetLogScale(log->isChecked());
  if (!unreadable.empty()) {
    chart_->Plot({}, "");
    SetDlgItemText(kCtlSpecStatus, unreadable);
    return;
  }
  const model::SpectrumResult r = model::GenerateResponseSpectrum(in);
  chart_->Plot(r.spectrum.points, r.spectrum.name);
  SetDlgItemText(kCtlSpecStatus, r.ok() ? std::to_string(r.spectrum.points.size()) + " points" : r.message);
}

bool CGenerateResponseSpectrumDlg::ValidateOnOK() {
  model::SpectrumResult r = model::GenerateResponseSpectrum(InputFromMembers());
  if (!r.ok()) {
    FailOn(FieldControl(r.field), r.message);
    return false;
  }
  m_spectrum = std::move(r.spectrum);
  m_bGenerated = 1;
  return true;
}
