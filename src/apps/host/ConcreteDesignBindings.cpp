#include "apps/host/DialogBindings.h"
#include "dialogs/design/CComputeKDlg.h"
#include "tools/format.h"

namespace {

std::string ShownK(double k) { return k > 0.0 ? tools::Format("%.2f", k) : std::string("no root"); }

}  // namespace

void RegisterConcreteDesignBindings() {
  // The calculator changes nothing in the model; the host only shows what it returned.
  RegisterDialogBinding({"CComputeKDlg", nullptr, [](CDialog& d, HostModel& m) {
                           const auto& dlg = static_cast<CComputeKDlg&>(d);
                           m.status = "Braced K = " + ShownK(dlg.m_dBracedK) + ", unbraced K = " +
                                      ShownK(dlg.m_dUnbracedK);
                           return false;
                         }});
}
