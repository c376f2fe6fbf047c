#include "apps/host/DialogBindings.h"
#include "dialogs/design/CComputeKDlg.h"
#include "dialogs/design/CSteelBeamColumnCheckDlg.h"
#include "tools/format.h"

namespace {

// A failed K keeps 1.0 in its member: the flag, not the number, says whether there is one.
std::string ShownK(const char* name, double k, BOOL failed) {
  return failed ? std::string(name) + " K failed (no root)" : tools::Format("%s K = %.2f", name, k);
}

}  // namespace

void RegisterConcreteDesignBindings() {
  // The calculator changes nothing in the model; the host only shows what it returned.
  BindDialog<CComputeKDlg>(nullptr, [](CComputeKDlg& dlg, HostModel& m) {
    m.status = ShownK("Braced", dlg.m_dBracedK, dlg.m_bBracedKFailed) + ", " +
               ShownK("unbraced", dlg.m_dUnbracedK, dlg.m_bUnbracedKFailed);
    return false;
  });
  // The steel check works on its own data: the host opens it with an example beam-column
  // (a W14X90 of 14 ft under two load sets) and takes nothing back.
  BindDialog<CSteelBeamColumnCheckDlg>(
      [](CSteelBeamColumnCheckDlg& dlg, HostModel&) {
        dlg.m_bConsiderMomentMagnification = 1;
        dlg.m_LoadSets = {{.Pu = 300, .Mux = 200, .Muy = 60, .Vux = 10, .Vuy = 35, .Cmx = 0.85, .Cmy = 1.0},
                          {.Pu = -150, .Mux = 120, .Vuy = 20}};
      },
      [](CDialog&, HostModel&) { return false; });
}
