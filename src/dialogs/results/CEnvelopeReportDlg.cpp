#include "dialogs/results/CEnvelopeReportDlg.h"

#include <QListWidget>
#include <QPushButton>

#include "dialogs/frame/Form.h"
#include "dialogs/results/envelope_tools.h"
#include "resources/results_ids.h"

namespace {

QListWidget* List(const CDialog& dlg) { return dlg.findChild<QListWidget*>(); }

}  // namespace

const frame::Form<CEnvelopeReportDlg>& CEnvelopeReportDlg::Description() {
  using F = frame::Field<CEnvelopeReportDlg>;
  static const frame::Form<CEnvelopeReportDlg> form(
      {res::kIddEnvelopeReport, "Envelope Load Combinations", 0, 420, 420},
      {
          F::Static("Load cases and combinations that take part in the envelope reports:").Span(2),
          F::CheckList("").Span(2).Stretch(res::kStretchRow),
          F::Button("Select All"),
          F::Button("Clear All"),
      });
  return form;
}

CEnvelopeReportDlg::CEnvelopeReportDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  for (QPushButton* b : findChildren<QPushButton*>()) {
    if (b->text() == "Select All") connect(b, &QPushButton::clicked, this, [this] { OnSelectAll(); });
    if (b->text() == "Clear All") connect(b, &QPushButton::clicked, this, [this] { OnClearAll(); });
  }
}

BOOL CEnvelopeReportDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  QListWidget* list = List(*this);
  if (!list) return 1;
  static const std::vector<fmLoadCase> kNoCases;
  static const std::vector<fmLoadComb> kNoCombs;
  static const std::vector<std::string> kNoNames;
  const auto choices = results::EnvelopeChoices(m_pLoadCases ? *m_pLoadCases : kNoCases,
                                                m_pLoadCombs ? *m_pLoadCombs : kNoCombs,
                                                m_pEnvelopeCombinations ? *m_pEnvelopeCombinations : kNoNames);
  for (const results::EnvelopeChoice& c : choices) {
    auto* item = new QListWidgetItem(QString::fromStdString(c.text), list);
    item->setData(Qt::UserRole, QString::fromStdString(c.label));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(c.checked ? Qt::Checked : Qt::Unchecked);
  }
  // A locked model is shown, not changed.
  if (m_bModelLocked) {
    list->setEnabled(false);
    for (QPushButton* b : findChildren<QPushButton*>())
      if (b->text() == "Select All" || b->text() == "Clear All") b->setEnabled(false);
    if (QWidget* ok = GetDlgItem(IDOK)) ok->setEnabled(false);
  }
  return 1;
}

int CEnvelopeReportDlg::LineCount() const {
  QListWidget* list = List(*this);
  return list ? list->count() : 0;
}

bool CEnvelopeReportDlg::IsChecked(int i) const {
  QListWidget* list = List(*this);
  return list && i >= 0 && i < list->count() && list->item(i)->checkState() == Qt::Checked;
}

void CEnvelopeReportDlg::SetChecked(int i, bool checked) {
  QListWidget* list = List(*this);
  if (list && i >= 0 && i < list->count()) list->item(i)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

void CEnvelopeReportDlg::OnSelectAll() {
  for (int i = 0; i < LineCount(); ++i) SetChecked(i, true);
}
void CEnvelopeReportDlg::OnClearAll() {
  for (int i = 0; i < LineCount(); ++i) SetChecked(i, false);
}

void CEnvelopeReportDlg::OnOK() {
  if (m_bModelLocked || !UpdateData(1)) return;
  if (m_pEnvelopeCombinations) {
    std::vector<std::string> chosen;
    if (QListWidget* list = List(*this))
      for (int i = 0; i < list->count(); ++i)
        if (list->item(i)->checkState() == Qt::Checked)
          chosen.push_back(list->item(i)->data(Qt::UserRole).toString().toStdString());
    *m_pEnvelopeCombinations = std::move(chosen);
  }
  EndDialog(IDOK);
}
