#include "apps/host/DialogBindings.h"
#include "dialogs/design/CComputeKDlg.h"
#include "dialogs/design/CSteelBeamColumnCheckDlg.h"
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
  // The steel check works on its own data: the host opens it with an example beam-column
  // (a W14X90 of 14 ft under two load sets) and takes nothing back.
  RegisterDialogBinding({"CSteelBeamColumnCheckDlg",
                         [](CDialog& d, HostModel&) {
                           auto& dlg = static_cast<CSteelBeamColumnCheckDlg&>(d);
                           dlg.m_bConsiderMomentMagnification = 1;
                           dlg.m_LoadSets = {{.Pu = 300, .Mux = 200, .Muy = 60, .Vux = 10, .Vuy = 35, .Cmx = 0.85, .Cmy = 1.0},
                                             {.Pu = -150, .Mux = 120, .Vuy = 20}};
                         },
                         [](CDialog&, HostModel&) { return false; }});
}
