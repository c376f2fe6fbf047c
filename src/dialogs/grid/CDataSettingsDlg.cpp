#include "dialogs/grid/CDataSettingsDlg.h"

#include <QPainter>
#include <QPixmap>
#include <QPushButton>

#include "dialogs/frame/DataExchange.h"
#include "resources/grid_ids.h"
#include "tools/format.h"

CDataSettingsDlg::CDataSettingsDlg(QWidget* pParent) : CDialog(res::kIddDataSettings, pParent) {
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

void CDataSettingsDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_Text(pDX, res::kCtlDsFontSize, m_nFontSize);
  DDV_MinMaxUInt(pDX, m_nFontSize, prefs::kMinSpreadFontSize, prefs::kMaxSpreadFontSize);
  DDX_Text(pDX, res::kCtlDsRowHeight, m_nRowHeight);
  DDV_MinMaxUInt(pDX, m_nRowHeight, prefs::kMinSpreadRowHeight, prefs::kMaxSpreadRowHeight);
  DDX_Check(pDX, res::kCtlDsShowRowHeader, m_bShowRowHeader);
  DDX_Check(pDX, res::kCtlDsAppendSave, m_bAppendSave);
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
