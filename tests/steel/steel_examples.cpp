#include "steel/steel_examples.h"

#include "dialogs/design/steel_check.h"

namespace steel_test {

std::unique_ptr<CAiscDesign> Check(const tools::AiscLibrary& library, const Member& m, const Loads& l,
                                   std::ostream* report) {
  std::unique_ptr<CAiscDesign> d(CSteelDesignManager::CreateAiscDesign(library, m.shape));
  if (!d) return d;
  design::SteelMember member;
  member.fy = m.Fy;
  member.lux = m.Lx;
  member.luy = m.Ly;
  member.luz = m.Lz;
  member.lb = m.Lb;
  member.kx = m.Kx;
  member.ky = m.Ky;
  member.kz = m.Kz;
  member.cb = m.Cb;
  member.connector = m.a;
  member.magnify = m.magnify;
  member.direct = m.direct;
  design::SetUpDesign(*d, member, report);
  d->SetLoads(l.Pu, l.Mux, l.Muy, l.Cmx, l.Cmy, l.Vux, l.Vuy);
  d->CheckMember();
  return d;
}

}  // namespace steel_test
