#include "dialogs/frame/DataExchange.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QRadioButton>

#include "dialogs/frame/ControlText.h"
#include "dialogs/frame/DebugOutput.h"
#include "tools/format.h"
#include "tools/parse.h"

QWidget* CDataExchange::PrepareCtrl(int controlId) {
  m_idLastControl = controlId;
  QWidget* w = m_pDlgWnd->GetDlgItem(controlId);
  if (!w) DebugOutput(tools::Format("Error finding control in data exchange: ctrlID = %d", controlId));
  return w;
}

void CDataExchange::Fail(const std::string& message) {
  m_pDlgWnd->FailOn(m_idLastControl, message);
  throw DataExchangeFailure{};
}

namespace {

std::string ReadText(const QWidget* w) { return frame::ControlText(w).toStdString(); }
void WriteText(QWidget* w, const std::string& text) { frame::SetControlText(w, QString::fromStdString(text)); }

}  // namespace

namespace {

// A number edit: written with the format, read by the parser, refused with the text.
template <class T, class Parser>
void ExchangeNumber(CDataExchange* pDX, int controlId, T& value, const char* format, Parser parse,
                    const char* refusal) {
  QWidget* w = pDX->PrepareCtrl(controlId);
  if (!w) return;
  if (!pDX->m_bSaveAndValidate) {
    WriteText(w, tools::Format(format, value));
    return;
  }
  const auto v = parse(ReadText(w));
  if (!v) pDX->Fail(refusal);
  value = *v;
}

}  // namespace

void DDX_Text(CDataExchange* pDX, int controlId, int32_t& value) {
  ExchangeNumber(pDX, controlId, value, "%d", tools::ParseInt32, "Please enter a whole number.");
}

void DDX_Text(CDataExchange* pDX, int controlId, uint32_t& value) {
  ExchangeNumber(pDX, controlId, value, "%u", tools::ParseUInt32, "Please enter a whole number that is not negative.");
}

void DDX_Text(CDataExchange* pDX, int controlId, double& value) {
  ExchangeNumber(pDX, controlId, value, "%.15g", tools::ParseDouble, "Please enter a number.");
}

void DDX_Text(CDataExchange* pDX, int controlId, std::string& value) {
  QWidget* w = pDX->PrepareCtrl(controlId);
  if (!w) return;
  if (pDX->m_bSaveAndValidate)
    value = ReadText(w);
  else
    WriteText(w, value);
}

void DDX_Check(CDataExchange* pDX, int controlId, BOOL& value) {
  auto* box = qobject_cast<QAbstractButton*>(pDX->PrepareCtrl(controlId));
  if (!box) return;
  if (pDX->m_bSaveAndValidate)
    value = box->isChecked() ? 1 : 0;
  else
    box->setChecked(value != 0);
}

void DDX_CBIndex(CDataExchange* pDX, int controlId, int32_t& index) {
  auto* combo = qobject_cast<QComboBox*>(pDX->PrepareCtrl(controlId));
  if (!combo) return;
  if (pDX->m_bSaveAndValidate)
    index = combo->currentIndex();
  else
    combo->setCurrentIndex(index);
}

void DDX_CBIndexOrFirst(CDataExchange* pDX, int controlId, int32_t& index) {
  if (!pDX->m_bSaveAndValidate)
    if (auto* combo = qobject_cast<QComboBox*>(pDX->m_pDlgWnd->GetDlgItem(controlId));
        combo && combo->count() > 0 && (index < 0 || index >= combo->count()))
      index = 0;
  DDX_CBIndex(pDX, controlId, index);
}

void DDX_CBString(CDataExchange* pDX, int controlId, std::string& value) {
  QWidget* w = pDX->PrepareCtrl(controlId);
  if (!w) return;
  if (pDX->m_bSaveAndValidate)
    value = ReadText(w);
  else
    WriteText(w, value);
}

void DDX_Radio(CDataExchange* pDX, int controlId, int32_t& value) {
  auto* first = qobject_cast<QRadioButton*>(pDX->PrepareCtrl(controlId));
  if (!first) return;
  QButtonGroup* group = first->group();
  const QList<QAbstractButton*> buttons = group ? group->buttons() : QList<QAbstractButton*>{first};
  if (pDX->m_bSaveAndValidate) {
    value = -1;
    for (int i = 0; i < buttons.size(); ++i)
      if (buttons[i]->isChecked()) value = i;
  } else {
    for (int i = 0; i < buttons.size(); ++i) buttons[i]->setChecked(i == value);
  }
}

void DDV_MinMaxUInt(CDataExchange* pDX, uint32_t value, uint32_t minValue, uint32_t maxValue) {
  if (!pDX->m_bSaveAndValidate) return;
  if (value < minValue || value > maxValue)
    pDX->Fail(tools::Format("Please enter a number between %u and %u.", minValue, maxValue));
}

void DDV_MinMaxInt(CDataExchange* pDX, int32_t value, int32_t minValue, int32_t maxValue) {
  if (!pDX->m_bSaveAndValidate) return;
  if (value < minValue || value > maxValue)
    pDX->Fail(tools::Format("Please enter a number between %d and %d.", minValue, maxValue));
}

void DDV_MinMaxDouble(CDataExchange* pDX, double value, double minValue, double maxValue) {
  if (!pDX->m_bSaveAndValidate) return;
  if (value < minValue || value > maxValue)
    pDX->Fail(tools::Format("Please enter a number between %g and %g.", minValue, maxValue));
}

void DDV_MaxChars(CDataExchange* pDX, const std::string& value, int maxChars) {
  if (!pDX->m_bSaveAndValidate) return;
  if (static_cast<int>(QString::fromStdString(value).size()) > maxChars)
    pDX->Fail(tools::Format("Please enter no more than %d characters.", maxChars));
}
