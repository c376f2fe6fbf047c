#include "model/response_spectrum_manager.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include "model/response_spectrum_codes.h"
#include "tools/atomic_file.h"
#include "tools/fm_exception.h"
#include "tools/labels.h"
#include "tools/parse.h"

namespace model {
namespace {

constexpr std::string_view kMagic = "norvane-response-spectra";
constexpr int kVersion = 1;
constexpr std::string_view kSpectrumKeyword = "spectrum ";

[[noreturn]] void Fail(size_t lineNo, const std::string& problem) {
  throw fmException("line " + std::to_string(lineNo) + ": " + problem);
}

}  // namespace

std::vector<fmResponseSpectrum> DefaultSpectra() {
  SpectrumInput input;
  input.code = kAsce2010;
  input.value1 = 1.0;
  input.value2 = 0.6;
  input.tl = 8.0;
  return {GenerateResponseSpectrum(input).spectrum};
}

std::string CheckSpectrumName(std::string_view name) {
  if (tools::Trim(name).empty()) return "the name is empty";
  if (tools::Trim(name).size() != name.size()) return "the name begins or ends with a blank";
  if (name.find_first_of("\r\n") != std::string_view::npos) return "the name holds a line break";
  if (tools::FirstInvalidUtf8(name) != std::string_view::npos) return "the name is not valid UTF-8 text";
  // A spreadsheet program would read such a name in an exported table as a formula.
  if (name.front() == '=' || name.front() == '@') return "the name begins with \"=\" or \"@\"";
  if (tools::CountChars(name) > tools::kMaxLabelChars) return "the name is longer than 127 characters";
  return {};
}

std::string SerializeSpectrumFile(const std::vector<fmResponseSpectrum>& spectra) {
  std::string out = "# Response spectra of Norvane, shared by all models of this user.\n";
  out += std::string(kMagic) + " " + std::to_string(kVersion) + "\n";
  for (const fmResponseSpectrum& s : spectra) {
    out += "\n";
    out += kSpectrumKeyword;
    out += s.name + "\n";
    out += SpectrumPointsText(s.points, false);
    out += "end\n";
  }
  return out;
}

std::vector<fmResponseSpectrum> ParseSpectrumFile(std::string_view text) {
  std::vector<fmResponseSpectrum> spectra;
  bool headerSeen = false, inSpectrum = false;
  size_t lineNo = 0, start = 0, openedAt = 0;
  while (start < text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string_view::npos) end = text.size();
    std::string_view line = text.substr(start, end - start);
    start = end + 1;
    ++lineNo;
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    const std::string_view trimmed = tools::Trim(line);
    if (!inSpectrum && (trimmed.empty() || trimmed.front() == '#')) continue;
    if (!headerSeen) {
      if (!trimmed.starts_with(kMagic)) Fail(lineNo, "not a response spectrum file");
      const auto version = tools::ParseInt32(trimmed.substr(kMagic.size()));
      if (!version || *version < 1) Fail(lineNo, "the version is not a whole number");
      if (*version > kVersion) Fail(lineNo, "written by a newer version of the program");
      headerSeen = true;
      continue;
    }
    if (!inSpectrum) {
      if (!line.starts_with(kSpectrumKeyword)) Fail(lineNo, "expected \"spectrum NAME\"");
      const std::string_view name = line.substr(kSpectrumKeyword.size());
      if (const std::string why = CheckSpectrumName(name); !why.empty()) Fail(lineNo, why);
      for (const fmResponseSpectrum& s : spectra)
        if (tools::LabelsEqual(s.name, name)) Fail(lineNo, "a second spectrum named \"" + std::string(name) + "\"");
      spectra.push_back({std::string(name), {}});
      inSpectrum = true;
      openedAt = lineNo;
      continue;
    }
    if (trimmed == "end") {
      if (spectra.back().points.empty()) Fail(lineNo, "the spectrum has no points");
      inSpectrum = false;
      continue;
    }
    const size_t tab = trimmed.find('\t');
    if (tab == std::string_view::npos) Fail(lineNo, "expected a period and an acceleration separated by a tab");
    const auto period = tools::ParseDouble(trimmed.substr(0, tab));
    const auto acceleration = tools::ParseDouble(trimmed.substr(tab + 1));
    if (!period) Fail(lineNo, "the period is not a number");
    if (!acceleration) Fail(lineNo, "the acceleration is not a number");
    std::vector<fmSpectrumPoint>& points = spectra.back().points;
    if (*period < 0) Fail(lineNo, "the period must not be negative");
    if (*acceleration < 0) Fail(lineNo, "the acceleration must not be negative");
    if (!points.empty() && !(*period > points.back().period)) Fail(lineNo, "the period does not increase");
    points.push_back({*period, *acceleration});
  }
  if (!headerSeen) Fail(lineNo + 1, "the file is empty");
  if (inSpectrum) Fail(openedAt, "the spectrum has no \"end\" line");
  return spectra;
}

}  // namespace model

CResponseSpectrumManager::CResponseSpectrumManager() : spectra_(model::DefaultSpectra()) {}

CResponseSpectrumManager& CResponseSpectrumManager::Instance() {
  static CResponseSpectrumManager manager;
  return manager;
}

const fmResponseSpectrum* CResponseSpectrumManager::Find(std::string_view name) const {
  for (const fmResponseSpectrum& s : spectra_)
    if (tools::LabelsEqual(s.name, name)) return &s;
  return nullptr;
}

std::string CResponseSpectrumManager::DefaultFilePath() {
  if (const char* file = std::getenv("NORVANE_SPECTRA_FILE"); file && *file) return file;
  std::string dir;
  if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg && *xdg == '/')
    dir = std::string(xdg) + "/norvane";
  else if (const char* home = std::getenv("HOME"); home && *home)
    dir = std::string(home) + "/.local/share/norvane";
  else
    return {};
  return dir + "/response-spectra.txt";
}

std::string CResponseSpectrumManager::FilePath() const { return path_.empty() ? DefaultFilePath() : path_; }

void CResponseSpectrumManager::SetFilePath(std::string path) { path_ = std::move(path); }

bool CResponseSpectrumManager::LoadFile() {
  lastError_.clear();
  const std::string path = FilePath();
  if (path.empty()) {
    lastError_ = "No per-user data folder for the response spectra (HOME is not set).";
    return false;
  }
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0 && errno == ENOENT) {
    spectra_ = model::DefaultSpectra();
    if (refusedPath_ == path) refusedPath_.clear();
    return true;
  }
  try {
    const std::string text = tools::ReadWholeFile(path, size_t(256) << 20);
    std::vector<fmResponseSpectrum> read = model::ParseSpectrumFile(text);
    // The list always has a first spectrum, which cannot be deleted.
    spectra_ = read.empty() ? model::DefaultSpectra() : std::move(read);
    if (refusedPath_ == path) refusedPath_.clear();
    return true;
  } catch (const tools::FileError& e) {
    lastError_ = e.what();
  } catch (const fmException& e) {
    lastError_ = path + ", " + e.what();
    refusedPath_ = path;
  }
  return false;
}

bool CResponseSpectrumManager::SaveFile() {
  lastError_.clear();
  const std::string path = FilePath();
  if (path.empty()) {
    lastError_ = "No per-user data folder for the response spectra (HOME is not set).";
    return false;
  }
  if (path == refusedPath_) {
    lastError_ = path + " could not be read and is kept as it is; correct or remove it first.";
    return false;
  }
  try {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    if (!folder.empty()) std::filesystem::create_directories(folder);
    tools::WriteFileAtomically(path, model::SerializeSpectrumFile(spectra_));
    return true;
  } catch (const std::exception& e) {
    lastError_ = e.what();
  }
  return false;
}
