#include "dialogs/design/regular_section.h"

#include "tools/format.h"
#include "tools/section_torsion.h"

namespace design {
namespace {

constexpr double kPi = 3.141592654;  // the calculator's own value, kept for identical results

}  // namespace

int DimensionCount(int type) {
  switch (type) {
    case kRectangle:
      return 2;
    case kRound:
      return 1;
    default:
      return 4;
  }
}

std::string CheckRegularSection(int type, const std::array<double, 4>& dims) {
  if (type != kWideFlange && type != kTee) return {};
  const double b = dims[0], d = dims[1], tf = dims[2], tw = dims[3];
  if (tw > b) return "Flange width must be greater than or equal to web width";
  // Only tf <= d, for the wide flange too: its web height d - 2 tf may come out negative.
  if (tf > d) return "Section depth must be greater than or equal to flange thickness";
  return {};
}

fmSect ComputeRegularSection(int type, const std::array<double, 4>& dims) {
  fmSect s(-1);
  const double b = dims[0], d = dims[1], tf = dims[2], tw = dims[3];
  switch (type) {
    case kRectangle:
      s.SetLabel(tools::Format("Rect%gx%g", b, d));
      s.b = b;
      s.d = d;
      s.A = b * d;
      s.Ay = s.A / 1.2;
      s.Az = s.A / 1.2;
      s.Iz = b * d * d * d / 12;
      s.Iy = d * b * b * b / 12;
      s.J = tools::calc_rect_J(b, d);
      break;
    case kRound: {
      const double D = b;
      s.SetLabel(tools::Format("Round%g", D));
      s.b = D;
      s.d = D;
      s.A = kPi * D * D / 4;
      s.Ay = 0.9 * s.A;
      s.Az = 0.9 * s.A;
      s.Iz = kPi * 0.015625 * D * D * D * D;
      s.Iy = s.Iz;
      s.J = 2 * s.Iz;
      break;
    }
    case kWideFlange: {
      const double h = d - 2 * tf;  // clear web height
      s.SetLabel(tools::Format("WideF%gx%gx%gx%g", b, d, tf, tw));
      s.b = b, s.d = d, s.tf = tf, s.tw = tw;
      s.A = 2 * tf * b + h * tw;
      s.Ay = tw * d;
      s.Az = 2 * b * tf / 1.2;  // only the flanges' shear area carries the 1.2
      s.Iz = (b * d * d * d - (b - tw) * h * h * h) / 12;
      s.Iy = (2 * tf * b * b * b + h * tw * tw * tw) / 12;
      s.J = 2 * tools::calc_rect_J(b, tf) + tools::calc_rect_J(h, tw);
      break;
    }
    case kTee: {
      s.SetLabel(tools::Format("Tee%gx%gx%gx%g", b, d, tf, tw));
      s.b = b, s.d = d, s.tf = tf, s.tw = tw;
      s.A = tw * (d - tf) + tf * b;
      s.Ay = tw * d;
      s.Az = tf * b;
      const double c = (tf * tf * (b - tw) + tw * d * d) / (2 * s.A);  // flange top to centroid
      s.Iz = (tw * (d - c) * (d - c) * (d - c) + b * c * c * c - (b - tw) * (c - tf) * (c - tf) * (c - tf)) / 3;
      s.Iy = (tf * b * b * b + (d - tf) * tw * tw * tw) / 12;
      s.J = tools::calc_rect_J(d - tf, tw) + tools::calc_rect_J(b, tf);
      break;
    }
    default:
      break;
  }
  return s;
}

}  // namespace design
