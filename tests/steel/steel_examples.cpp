#include "steel/steel_examples.h"

namespace steel_test {

std::unique_ptr<CAiscDesign> Check(const tools::AiscLibrary& library, const Member& m, const Loads& l,
                                   std::ostream* report) {
  std::unique_ptr<CAiscDesign> d(CSteelDesignManager::CreateAiscDesign(library, m.shape));
  if (!d) return d;
  d->SetPrint(report != nullptr);
  d->SetPrintFile(report);
  d->SetMaterial(m.Fy);
  d->SetGeneralParameters(m.direct, m.magnify);
  d->SetColumnSlenderness(m.Kx, m.Ky, m.Lx * 12, m.Ly * 12);
  d->SetLateralTorsionalProperty(m.Cb, m.Lb * 12);
  d->SetColumnSlenderness_Torsional(m.Kz, m.Lz * 12);
  d->SetDoubleAngleConnnectorDistance(m.a * 12);
  d->SetLoads(l.Pu, l.Mux, l.Muy, l.Cmx, l.Cmy, l.Vux, l.Vuy);
  d->CheckMember();
  return d;
}

}  // namespace steel_test
