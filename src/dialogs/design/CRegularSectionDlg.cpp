#include "dialogs/design/CRegularSectionDlg.h"

#include <QComboBox>

#include "dialogs/design/SectionPicture.h"
#include "dialogs/design/regular_section.h"
#include "dialogs/frame/DataExchange.h"
#include "resources/sections_ids.h"
#include "tools/parse.h"

CRegularSectionDlg::CRegularSectionDlg(QWidget* pParent) : CDialog(res::kIddRegularSection, pParent) {
  OnSelChange(res::kCtlRegType, [this] { OnSelChangeType(); });
  for (int i = 0; i < 4; ++i) OnEditChange(res::kCtlRegDim1 + i, [this] { UpdatePicture(); });
}

BOOL CRegularSectionDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  if (auto* combo = Item<QComboBox>(res::kCtlRegType)) {
    combo->clear();
    for (int t = 0; t < design::kRegularSectionTypeCount; ++t)
      combo->addItem(QString::fromStdString(res::LoadStringOr(res::kStrRegTypeNames + t, "")));
    combo->setCurrentIndex(m_nType >= 0 && m_nType < design::kRegularSectionTypeCount ? m_nType : 0);
  }
  if (m_pUnits) SetDlgItemText(res::kCtlRegUnit, m_pUnits->Label(fmUnit::Length));
  if (!picture_) {
    picture_ = new SectionPicture(this);
    picture_->CreateInPlace(this, res::kCtlRegPicture);
    picture_->SetPlaceholderText(QString::fromStdString(
        res::LoadStringOr(res::kStrRegPictureHint, "Enter positive dimensions to see the shape to scale.")));
  }
  UpdateData(0);
  ApplyType(m_nType);
  return 1;
}

void CRegularSectionDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_CBIndex(pDX, res::kCtlRegType, m_nType);
  double* dims[] = {&m_dDim1, &m_dDim2, &m_dDim3, &m_dDim4};
  for (int i = 0; i < 4; ++i) {
    DDX_Text(pDX, res::kCtlRegDim1 + i, *dims[i]);
    DDV_MinMaxDouble(pDX, *dims[i], design::kMinDimension, design::kMaxDimension);
  }
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
      SetDlgItemText(res::kCtlRegCaption1 + i, res::LoadStringOr(captions[type][i].stringId, captions[type][i].text));
    else
      SetDlgItemText(res::kCtlRegDim1 + i, design::kUnusedDimensionText);
    EnableDlgItem(res::kCtlRegDim1 + i, i < used);
  }
  UpdatePicture();
}

void CRegularSectionDlg::OnSelChangeType() {
  if (auto* combo = Item<QComboBox>(res::kCtlRegType)) ApplyType(combo->currentIndex());
}

void CRegularSectionDlg::UpdatePicture() {
  if (!picture_) return;
  const auto* combo = Item<QComboBox>(res::kCtlRegType);
  const int type = combo ? combo->currentIndex() : m_nType;
  // The picture follows what is typed; a box that does not read yet leaves it empty.
  double dims[4];
  for (int i = 0; i < 4; ++i) {
    const auto v = tools::ParseDouble(GetDlgItemText(res::kCtlRegDim1 + i));
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
