#include "dialogs/grid/CDataSettingsDlg.h"

#include <QPainter>
#include <QPixmap>
#include <QPushButton>

#include "dialogs/frame/Form.h"
#include "resources/frame_ids.h"
#include "resources/grid_ids.h"
#include "tools/format.h"

// The grid settings in one group, the colour button showing the colour it stands for. The
// captions are the preferences' spreadsheet strings.
const frame::Form<CDataSettingsDlg>& CDataSettingsDlg::Description() {
  using F = frame::Field<CDataSettingsDlg>;
  using D = CDataSettingsDlg;
  using namespace res;
  static const frame::Form<D> form(
      {.templateId = kIddDataSettings, .caption = "Spreadsheet Settings", .captionStringId = kStrPrefSpreadsheet,
       .stretchColumn = false},
      {
          F::Group("Grid"),
          F::UInt("Font size:", &D::m_nFontSize, prefs::kMinSpreadFontSize, prefs::kMaxSpreadFontSize)
              .LabelId(0, kStrPrefFontSize).Suffix("points").Flags(kAlignRight),
          F::UInt("Row height:", &D::m_nRowHeight, prefs::kMinSpreadRowHeight, prefs::kMaxSpreadRowHeight)
              .LabelId(0, kStrPrefRowHeight).Suffix("pixels").Flags(kAlignRight),
          F::Static("Alternate row color:").At(2, 0).Span(1),
          F::Button("").Id(kCtlDsColor).At(2, 1).Span(2),
          F::Check("Show row headers in spreadsheets", &D::m_bShowRowHeader).Id(0, kStrPrefShowRowHeaders),
          F::Check("Append to existing file when saving spreadsheet to htm/txt format", &D::m_bAppendSave)
              .Id(0, kStrPrefAppendSave),
          F::EndGroup(),
      });
  return form;
}

CDataSettingsDlg::CDataSettingsDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnCommand(res::kCtlDsColor, [this] { OnChooseColor(); });
}

void CDataSettingsDlg::SetSettings(const prefs::SpreadsheetSettings& s) {
  m_nFontSize = static_cast<uint32_t>(s.fontSize);
  m_nRowHeight = static_cast<uint32_t>(s.rowHeight);
  m_bShowRowHeader = s.showRowHeader;
  m_bAppendSave = s.appendSave;
  m_crAlternateRowColor = s.alternateRowColor;
}

prefs::SpreadsheetSettings CDataSettingsDlg::GetSettings() const {
  prefs::SpreadsheetSettings s;
  s.fontSize = static_cast<int>(m_nFontSize);
  s.rowHeight = static_cast<int>(m_nRowHeight);
  s.showRowHeader = m_bShowRowHeader != 0;
  s.appendSave = m_bAppendSave != 0;
  s.alternateRowColor = m_crAlternateRowColor & 0xFFFFFFu;
  return s;
}

BOOL CDataSettingsDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  ShowColor();
  return 1;
}

void CDataSettingsDlg::OnChooseColor() {
  const std::string title = res::LoadStringOr(res::kStrDsColorTitle, "Alternate Row Color");
  if (const auto chosen = GetPrompter().ChooseColor(this, title, m_crAlternateRowColor)) {
    m_crAlternateRowColor = *chosen & 0xFFFFFFu;
    ShowColor();
  }
}

// The button wears a swatch of the colour and its value, as a row of the grid would show it.
void CDataSettingsDlg::ShowColor() {
  auto* button = Item<QPushButton>(res::kCtlDsColor);
  if (!button) return;
  const QColor color = QColor::fromRgb(m_crAlternateRowColor & 0xFFFFFFu);
  QPixmap swatch(40, 16);
  swatch.fill(color);
  QPainter painter(&swatch);
  painter.setPen(Qt::darkGray);
  painter.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
  painter.end();
  button->setIcon(QIcon(swatch));
  button->setIconSize(swatch.size());
  button->setText(QString::fromStdString(tools::Format("#%06X", m_crAlternateRowColor & 0xFFFFFFu)));
}
