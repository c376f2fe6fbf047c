#pragma once
#include <cstdint>
#include <string>

#include "dialogs/frame/CDialog.h"

// Moves values between a dialog's members and its controls. On save, a value that does
// not read or is out of range shows the standard message, focuses the control and
// abandons the exchange (UpdateData returns false).
class CDataExchange {
 public:
  CDataExchange(CDialog* dialog, BOOL bSaveAndValidate) : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(dialog) {}

  BOOL m_bSaveAndValidate;
  CDialog* m_pDlgWnd;
  int m_idLastControl = 0;

  QWidget* PrepareCtrl(int controlId);
  // Shows the text, focuses the last control and abandons the exchange.
  [[noreturn]] void Fail(const std::string& message);
};

struct DataExchangeFailure {};

void DDX_Text(CDataExchange* pDX, int controlId, int32_t& value);
void DDX_Text(CDataExchange* pDX, int controlId, uint32_t& value);
void DDX_Text(CDataExchange* pDX, int controlId, double& value);
void DDX_Text(CDataExchange* pDX, int controlId, std::string& value);
void DDX_Check(CDataExchange* pDX, int controlId, BOOL& value);
void DDX_CBIndex(CDataExchange* pDX, int controlId, int32_t& index);
// As DDX_CBIndex, but an index outside a list that has entries shows the first entry and
// takes its index, so that a host's stale index never leaves the list without a choice.
void DDX_CBIndexOrFirst(CDataExchange* pDX, int controlId, int32_t& index);
void DDX_CBString(CDataExchange* pDX, int controlId, std::string& value);
// The first radio of a group; value is the index of the checked one, -1 for none.
void DDX_Radio(CDataExchange* pDX, int controlId, int32_t& value);

void DDV_MinMaxUInt(CDataExchange* pDX, uint32_t value, uint32_t minValue, uint32_t maxValue);
void DDV_MinMaxInt(CDataExchange* pDX, int32_t value, int32_t minValue, int32_t maxValue);
void DDV_MinMaxDouble(CDataExchange* pDX, double value, double minValue, double maxValue);
void DDV_MaxChars(CDataExchange* pDX, const std::string& value, int maxChars);
