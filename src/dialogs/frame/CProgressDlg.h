#pragma once
#include <cstdint>

#include "dialogs/frame/CDialog.h"

using UINT = uint32_t;
using WPARAM = uintptr_t;
using LPARAM = intptr_t;
using LRESULT = intptr_t;
inline constexpr UINT WM_USER = 0x0400;

// Run-time class information, as the host uses it to recognise the progress window.
struct CRuntimeClass {
  const char* m_lpszClassName;
  int m_nObjectSize;
  const CRuntimeClass* m_pBaseClass;
  bool IsDerivedFrom(const CRuntimeClass* base) const;
};

// The modeless progress window of the sparse solver, driven by three user messages.
class CProgressDlg : public CDialog {
 public:
  static constexpr UINT WM_PROGRESS_UPDATE = WM_USER + 100;  // wParam = percent
  static constexpr UINT WM_PROGRESS_SHOW = WM_USER + 101;
  static constexpr UINT WM_PROGRESS_HIDE = WM_USER + 102;

  explicit CProgressDlg(QWidget* pParent = nullptr);
  static const frame::Form<CProgressDlg>& Description();

  static const CRuntimeClass classCProgressDlg;
  static const CRuntimeClass* GetThisClass() { return &classCProgressDlg; }
  virtual const CRuntimeClass* GetRuntimeClass() const { return &classCProgressDlg; }

  bool Create(QWidget* pParent = nullptr);
  // Handles a message at once (as SendMessage does); returns 1 for the three messages.
  LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
  // Queues a message for the window's thread, so a computation elsewhere can report.
  void PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

  int Position() const;

 protected:
  BOOL OnInitDialog() override;
  LRESULT OnUpdateProgress(WPARAM wParam, LPARAM lParam);
  LRESULT OnShowProgress(WPARAM wParam, LPARAM lParam);
  LRESULT OnHideProgress(WPARAM wParam, LPARAM lParam);
};
