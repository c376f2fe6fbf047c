#include "dialogs/design/CShapeBrowserDlg.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QTreeWidget>

#include "dialogs/design/SectionPicture.h"
#include "dialogs/frame/Form.h"
#include "resources/sections_ids.h"
#include "tools/format.h"

frame::Form<CShapeBrowserDlg> CShapeBrowserDlg::BrowserForm(int templateId, const char* caption) {
  using F = frame::Field<CShapeBrowserDlg>;
  using namespace res;
  return frame::Form<CShapeBrowserDlg>(
      {.templateId = templateId, .caption = caption, .minWidth = 860, .minHeight = 480, .stretchColumn = false},
      {
          F::Drop("Shape type:").Id(kCtlShapeType).Items([](const CShapeBrowserDlg& d) {
            std::vector<std::string> types{res::LoadStringOr(kStrShapeAllTypes, "All types")};
            for (std::string& t : d.TypeNames()) types.push_back(std::move(t));
            return types;
          }),
          F::Text("Find:", &CShapeBrowserDlg::m_strFind).Id(kCtlShapeFind),
          F::List("").Id(kCtlShapeList).Span(2).Stretch(kStretchRow),
          F::Static("").Id(kCtlShapeCount).Span(2),
          F::Report("Property\tValue\tUnit").Id(kCtlShapeProperties).At(0, 2, 4, 1).Stretch(kStretchCol),
          F::Grid().Id(kCtlShapePicture).At(0, 3, 4, 1).Stretch(0),
      });
}

CShapeBrowserDlg::CShapeBrowserDlg(const frame::FormBase& form, QWidget* pParent) : CDialog(form, pParent) {
  OnSelChange(res::kCtlShapeType, [this] { RefillList(); });
  OnEditChange(res::kCtlShapeFind, [this] { RefillList(); });
  OnSelChange(res::kCtlShapeList, [this] { ShowShape(CurrentShape()); });
  OnDoubleClick(res::kCtlShapeList, [this] { OnOK(); });
}

BOOL CShapeBrowserDlg::OnInitDialog() {
  LoadTable();
  CDialog::OnInitDialog();
  if (!picture_) {
    picture_ = new SectionPicture(this);
    picture_->CreateInPlace(this, res::kCtlShapePicture);
  }
  if (auto* tree = Item<QTreeWidget>(res::kCtlShapeProperties)) {
    tree->setColumnCount(3);
    tree->header()->setStretchLastSection(false);
    tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  }
  if (m_nSelectedShape < 0 || m_nSelectedShape >= TableSize()) m_nSelectedShape = FindLabel(m_strShapeName);
  RefillList();
  return 1;
}

void CShapeBrowserDlg::RefillList() {
  auto* list = Item<QListWidget>(res::kCtlShapeList);
  if (!list) return;
  const auto* combo = Item<QComboBox>(res::kCtlShapeType);
  const auto* find = Item<QLineEdit>(res::kCtlShapeFind);
  const int keep = CurrentShape() >= 0 ? CurrentShape() : m_nSelectedShape;
  shown_ = Filter(combo ? std::max(0, combo->currentIndex()) : 0, find ? find->text().toStdString() : "");
  const QSignalBlocker block(list);
  list->clear();
  int row = -1;
  for (size_t i = 0; i < shown_.size(); ++i) {
    list->addItem(QString::fromStdString(LabelOf(shown_[i])));
    if (shown_[i] == keep) row = static_cast<int>(i);
  }
  if (row < 0 && !shown_.empty()) row = 0;
  list->setCurrentRow(row);
  if (row >= 0) list->scrollToItem(list->item(row), QAbstractItemView::PositionAtCenter);
  SetDlgItemText(res::kCtlShapeCount, tools::Format("%zu of %d shapes", shown_.size(), TableSize()));
  ShowShape(CurrentShape());
}

int CShapeBrowserDlg::CurrentShape() const {
  const auto* list = Item<QListWidget>(res::kCtlShapeList);
  if (!list) return -1;
  const int row = list->currentRow();
  return row >= 0 && row < static_cast<int>(shown_.size()) ? shown_[static_cast<size_t>(row)] : -1;
}

void CShapeBrowserDlg::ShowShape(int index) {
  auto* tree = Item<QTreeWidget>(res::kCtlShapeProperties);
  if (tree) tree->clear();
  if (picture_) picture_->SetOutline(index >= 0 ? OutlineOf(index) : design::Outline());
  if (index < 0 || !tree) return;
  for (const auto& line : Properties(index, Units()))
    tree->addTopLevelItem(new QTreeWidgetItem(
        {QString::fromStdString(line.name), QString::fromStdString(line.value), QString::fromStdString(line.unit)}));
}

void CShapeBrowserDlg::OnOK() {
  const int index = CurrentShape();
  if (index < 0) {
    MessageBox("Select a shape in the list first.");
    return;
  }
  if (const std::string refusal = RefusalOf(index); !refusal.empty()) {
    MessageBox(refusal);
    return;
  }
  m_nSelectedShape = index;
  m_strShapeName = LabelOf(index);
  OnShapeChosen(index);
  EndDialog(IDOK);
}
