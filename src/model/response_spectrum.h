#pragma once
#include <string>
#include <string_view>
#include <vector>

// A response spectrum: spectral acceleration in g (Sa/g) against period in seconds, in
// increasing period. Spectra are shared between models through the spectrum manager.

struct fmSpectrumPoint {
  double period = 0;        // seconds
  double acceleration = 0;  // Sa / g
  bool operator==(const fmSpectrumPoint&) const = default;
};

struct fmResponseSpectrum {
  std::string name;
  std::vector<fmSpectrumPoint> points;
  bool operator==(const fmResponseSpectrum&) const = default;
};

namespace model {

// The first point whose period does not exceed the one before it, or whose values are
// not finite; -1 when the points are usable.
int FirstBadSpectrumPoint(const std::vector<fmSpectrumPoint>& points);

// Reads a user's spectrum: one point per line, period and acceleration in g separated by
// blanks, a tab, a comma or a semicolon; blank lines and lines starting with '#' are
// skipped, and so is a first line that is a heading (no number in its first column).
// Throws fmException naming the line when a value is not a number or periods do not increase.
std::vector<fmSpectrumPoint> ParseSpectrumPoints(std::string_view text);
// The spectrum as "period,acceleration" lines (csv) or tab-separated lines, "\n" ended,
// with the shortest digits that read back to the same values.
std::string SpectrumPointsText(const std::vector<fmSpectrumPoint>& points, bool csv);

// Reads a file of points; the spectrum is named `name` or, when it is empty, the file's
// stem. Throws fmException naming the file and the line.
fmResponseSpectrum ImportSpectrumFile(const std::string& path, std::string_view name = {});
// Writes a .csv file with commas and any other with tabs, atomically; throws tools::FileError.
void ExportSpectrumFile(const fmResponseSpectrum& spectrum, const std::string& path);

// The shortest text of a real that reads back to the same value ("0.1", "7.63").
std::string ExactNumberText(double value);

}  // namespace model
