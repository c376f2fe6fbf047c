#include "dialogs/design/CRegularSectionDlg.h"

#include <QComboBox>

#include "dialogs/design/SectionPicture.h"
#include "dialogs/design/regular_section.h"
#include "dialogs/frame/Form.h"
#include "resources/sections_ids.h"
#include "tools/parse.h"

namespace {
using D = CRegularSectionDlg;
constexpr double D::* kDimensions[] = {&D::m_dDim1, &D::m_dDim2, &D::m_dDim3, &D::m_dDim4};
}  // namespace

// The type and four dimensions with the length unit below them, the picture to the right.
const frame::Form<CRegularSectionDlg>& CRegularSectionDlg::Description() {
  using F = frame::Field<D>;
  using design::kMaxDimension, design::kMinDimension;
  static const frame::Form<D> form(
      {.templateId = res::kIddRegularSection, .caption = "Regular Section", .minWidth = 560, .minHeight = 300,
       .stretchColumn = false},
      {
          F::DropIndex("Section Type:", &D::m_nType).Items({"Rectangle", "Round", "Wide Flange", "Tee"}),
          F::Real("Width", &D::m_dDim1, kMinDimension, kMaxDimension),
          F::Real("Depth", &D::m_dDim2, kMinDimension, kMaxDimension),
          F::Real("Flange Thickness", &D::m_dDim3, kMinDimension, kMaxDimension),
          F::Real("Web Thickness", &D::m_dDim4, kMinDimension, kMaxDimension),
          F::Static("").Id(res::kCtlRegUnit).At(5, 1).Span(1),
          F::Static("").At(6, 0).Span(2).Flags(res::kStretchRow),
          F::Grid().Id(res::kCtlRegPicture).At(0, 2, 7, 1).Stretch(res::kStretchCol),
      });
  return form;
}

int CRegularSectionDlg::DimensionId(int i) { return frame::IdOf(kDimensions[i]); }
int CRegularSectionDlg::CaptionId(int i) { return frame::FieldOf(kDimensions[i]).labelId; }

CRegularSectionDlg::CRegularSectionDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnSelChange(frame::IdOf(&D::m_nType), [this] { OnSelChangeType(); });
  for (int i = 0; i < 4; ++i) OnEditChange(DimensionId(i), [this] { UpdatePicture(); });
}

BOOL CRegularSectionDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  if (m_pUnits) SetDlgItemText(res::kCtlRegUnit, m_pUnits->Label(fmUnit::Length));
  if (!picture_) {
    picture_ = new SectionPicture(this);
    picture_->CreateInPlace(this, res::kCtlRegPicture);
    picture_->SetPlaceholderText(QString::fromStdString(
        res::LoadStringOr(res::kStrRegPictureHint, "Enter positive dimensions to see the shape to scale.")));
  }
  ApplyType(m_nType);
  return 1;
}

void CRegularSectionDlg::ApplyType(int type) {
  struct Caption {
    int stringId;
    const char* text;
  };
  const Caption width{res::kStrRegWidth, "Width"}, depth{res::kStrRegDepth, "Depth"},
      diameter{res::kStrRegDiameter, "Diameter"}, flangeWidth{res::kStrRegFlangeWidth, "Flange Width"},
      flangeThickness{res::kStrRegFlangeThickness, "Flange Thickness"},
      webThickness{res::kStrRegWebThickness, "Web Thickness"};
  const Caption captions[][4] = {{width, depth, flangeThickness, webThickness},
                                 {diameter, depth, flangeThickness, webThickness},
                                 {flangeWidth, depth, flangeThickness, webThickness},
                                 {flangeWidth, depth, flangeThickness, webThickness}};
  if (type < 0 || type >= design::kRegularSectionTypeCount) type = 0;
  const int used = design::DimensionCount(type);
  for (int i = 0; i < 4; ++i) {
    // The boxes a type does not use keep their caption and hold the smallest value.
    if (i < used)
      SetDlgItemText(CaptionId(i), res::LoadStringOr(captions[type][i].stringId, captions[type][i].text));
    else
      SetDlgItemText(DimensionId(i), design::kUnusedDimensionText);
    EnableDlgItem(DimensionId(i), i < used);
  }
  UpdatePicture();
}

void CRegularSectionDlg::OnSelChangeType() {
  if (auto* combo = Item<QComboBox>(frame::IdOf(&D::m_nType))) ApplyType(combo->currentIndex());
}

void CRegularSectionDlg::UpdatePicture() {
  if (!picture_) return;
  const auto* combo = Item<QComboBox>(frame::IdOf(&D::m_nType));
  const int type = combo ? combo->currentIndex() : m_nType;
  // The picture follows what is typed; a box that does not read yet leaves it empty.
  double dims[4];
  for (int i = 0; i < 4; ++i) {
    const auto v = tools::ParseDouble(GetDlgItemText(DimensionId(i)));
    if (!v) {
      picture_->SetOutline({});
      return;
    }
    dims[i] = *v;
  }
  picture_->SetOutline(design::RegularSectionOutline(type, dims, m_pUnits ? m_pUnits->Label(fmUnit::Length) : ""));
}

void CRegularSectionDlg::OnOK() {
  if (!UpdateData(1)) return;
  const std::string refusal = design::CheckRegularSection(m_nType, {m_dDim1, m_dDim2, m_dDim3, m_dDim4});
  if (!refusal.empty()) {
    MessageBox(refusal);
    return;
  }
  EndDialog(IDOK);
}
