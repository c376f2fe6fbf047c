#include "dialogs/design/steel_check.h"

#include <cmath>
#include <memory>

#include "steel/steel_design_manager.h"
#include "steel/steel_report.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace design {

std::optional<SteelFailure> CheckGeometryAndMaterial(const SteelMember& m) {
  const struct {
    bool bad;
    const char* message;
    SteelField field;
  } checks[] = {
      {!(m.fy > 0), "Invalid steel yield stress", SteelField::Fy},
      {!(m.length > 0), "Length must be greater than 0.0", SteelField::Length},
      {!(m.lux > 0), "Lux must be greater than 0.0", SteelField::Lux},
      {!(m.kx > 0), "Kx must be greater than 0.0", SteelField::Kx},
      {!(m.luy > 0), "Luy must be greater than 0.0", SteelField::Luy},
      {!(m.ky > 0), "Ky must be greater than 0.0", SteelField::Ky},
      {!(m.luz > 0), "Luz must be greater than 0.0", SteelField::Luz},
      {!(m.kz > 0), "Invalid Kz specified", SteelField::Kz},
      {!(m.lb >= 0), "Lb must be greater than or equal to 0.0", SteelField::Lb},
      // Cb = 1.0 itself passes, whatever the message says.
      {!(m.cb >= 1.0), "Cb must be greater than 1.0", SteelField::Cb},
      {!(m.connector >= 0), "Connector distance must be greater than or equal to 0.0", SteelField::Connector},
  };
  for (const auto& c : checks)
    if (c.bad) return SteelFailure{c.message, c.field, 0};
  return std::nullopt;
}

std::optional<SteelFailure> CheckLoads(const std::vector<SteelLoadSet>& loads) {
  for (size_t i = 0; i < loads.size(); ++i) {
    const int n = static_cast<int>(i + 1);
    if (!(loads[i].Cmx >= 0.2 && loads[i].Cmx <= 1.0))
      return SteelFailure{tools::Format("Cmx must be between [0.2, 1.0] for load %d.", n), SteelField::Fy, n};
    if (!(loads[i].Cmy >= 0.2 && loads[i].Cmy <= 1.0))
      return SteelFailure{tools::Format("Cmy must be between [0.2, 1.0]  for load %d.", n), SteelField::Fy, n};
  }
  return std::nullopt;
}

std::optional<SteelLoadSet> ParseLoadSet(const std::vector<std::string>& cells, int loadSet, std::string* message,
                                         int* column) {
  static const char* const kNames[] = {"Pu", "Mux", "Muy", "Vux", "Vuy", "Cmx", "Cmy"};
  double v[7] = {0, 0, 0, 0, 0, 1, 1};
  for (size_t k = 0; k < 7 && k < cells.size(); ++k) {
    if (tools::Trim(cells[k]).empty()) continue;
    const auto x = tools::ParseDouble(cells[k]);
    if (!x || !std::isfinite(*x)) {
      if (message) *message = tools::Format("Invalid %s for load %d.", kNames[k], loadSet);
      if (column) *column = static_cast<int>(k);
      return std::nullopt;
    }
    v[k] = *x;
  }
  return SteelLoadSet{v[0], v[1], v[2], v[3], v[4], v[5], v[6]};
}

void WriteSteelReportHead(std::ostream& out, const SteelMember& m, int loadSets) {
  using tools::HtmlEscape;
  using steel::Num;
  steel::WriteReportHead(out, "Steel Beam-Column Check: ANSI/AISC 360-10 LRFD");
  out << "<div class=\"area\">\n<h2>Member</h2>\n<table class=\"steps\">\n";
  const auto row = [&](const std::string& name, const std::string& value) {
    out << "<tr><td>" << HtmlEscape(name) << "</td><td>" << HtmlEscape(value) << "</td></tr>\n";
  };
  row("Section", m.shape);
  row("Fy", Num(m.fy) + " ksi");
  row("Length", Num(m.length) + " ft");
  row("Lux, Kx", Num(m.lux) + " ft, " + Num(m.kx));
  row("Luy, Ky", Num(m.luy) + " ft, " + Num(m.ky));
  row("Luz, Kz", Num(m.luz) + " ft, " + Num(m.kz));
  row("Lb, Cb", Num(m.lb) + " ft, " + Num(m.cb));
  row("Connector distance (double angles)", Num(m.connector) + " ft");
  row("Consider Moment Magnification", m.magnify ? "yes" : "no");
  row("Use Direct Design Method", m.direct ? "yes" : "no");
  row("Load sets", tools::Format("%d", loadSets));
  out << "</table>\n<p>Forces in kip, moments in kip-ft (kip-in within the equations), lengths in ft (in within "
         "the equations), stresses in ksi. Pu &gt; 0 is compression. With moment magnification, B1 of Appendix 8 "
         "amplifies each moment with K1 = 1.0 and the unbraced length about its axis; the direct design method "
         "takes EI* = 0.8&tau;bEI there.</p>\n</div>\n";
}

void WriteSteelReportFoot(std::ostream& out) { steel::WriteReportFoot(out); }

void SetUpDesign(CAiscDesign& design, const SteelMember& m, std::ostream* report) {
  design.SetPrint(report != nullptr);
  design.SetPrintFile(report);
  design.SetMaterial(m.fy);
  design.SetGeneralParameters(m.direct, m.magnify);
  // The library takes lengths in inches.
  design.SetColumnSlenderness(m.kx, m.ky, m.lux * 12.0, m.luy * 12.0);
  design.SetLateralTorsionalProperty(m.cb, m.lb * 12.0);
  design.SetColumnSlenderness_Torsional(m.kz, m.luz * 12.0);
  design.SetDoubleAngleConnnectorDistance(m.connector * 12.0);
}

bool RunSteelCheck(const SteelMember& m, const std::vector<SteelLoadSet>& loads, std::ostream* report,
                   std::vector<SteelResult>& results, std::string* message, const tools::AiscLibrary* library) {
  CSteelDesignManager* manager = CSteelDesignManager::Instance();
  CAiscDesign* raw = library ? CSteelDesignManager::CreateAiscDesign(*library, m.shape)
                             : manager->CreateAiscDesign(std::string_view(tools::Trim(m.shape)));
  if (!raw) {
    if (message) *message = "Invalid AISC section";
    return false;
  }
  const std::unique_ptr<CAiscDesign, void (*)(CAiscDesign*)> design(
      raw, [](CAiscDesign* d) { CSteelDesignManager::Instance()->DeleteAiscDesign(d); });
  SetUpDesign(*design, m, report);
  results.clear();
  for (size_t i = 0; i < loads.size(); ++i) {
    const SteelLoadSet& l = loads[i];
    ProblemPrintArea area(report, tools::Format("Load set %zu", i + 1));
    design->SetLoads(l.Pu, l.Mux, l.Muy, l.Cmx, l.Cmy, l.Vux, l.Vuy);
    design->CheckMember();
    results.push_back({design->m_phiPn, design->m_phiMnx, design->m_phiMny, design->m_phiVnx, design->m_phiVny,
                       design->m_B1x, design->m_B1y, design->GetCriticalRatio()});
  }
  return true;
}

}  // namespace design
