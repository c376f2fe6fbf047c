#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "model/response_spectrum.h"

// The response spectra of this user, shared by all models and kept in a file of their own
// (docs/response-spectra.md). One instance per process; dialogs load it when they open and
// save it after each change.
class CResponseSpectrumManager {
 public:
  static CResponseSpectrumManager& Instance();

  const std::vector<fmResponseSpectrum>& GetSpectra() const { return spectra_; }
  void SetSpectra(std::vector<fmResponseSpectrum> spectra) { spectra_ = std::move(spectra); }
  // The spectrum of that name (compared without regard to case), or null.
  const fmResponseSpectrum* Find(std::string_view name) const;

  // Reads the file. Without a file the user starts with the default spectrum. A damaged
  // file is refused: false, LastError() names the line, the spectra held stay as they
  // were, and SaveFile will not write over that file until it reads again.
  bool LoadFile();
  // Writes beside the file and renames into place; false with LastError() on failure,
  // when the old file is still there unchanged.
  bool SaveFile();
  const std::string& LastError() const { return lastError_; }

  // The file in use: the one set for tests or scripts, else DefaultFilePath().
  std::string FilePath() const;
  // An empty path returns to the default; the spectra held are left as they are.
  void SetFilePath(std::string path);
  // NORVANE_SPECTRA_FILE when set, else response-spectra.txt in the per-user data folder
  // (XDG_DATA_HOME/norvane or ~/.local/share/norvane), beside the user's shape library.
  static std::string DefaultFilePath();

 private:
  CResponseSpectrumManager();

  std::vector<fmResponseSpectrum> spectra_;
  std::string path_;
  std::string lastError_;
  std::string refusedPath_;  // a damaged file that must not be overwritten
};

namespace model {

// What a new user has: ASCE 2010 with SDS 1.0, SD1 0.6 and TL 8.
std::vector<fmResponseSpectrum> DefaultSpectra();

// The file's text and its reader. The reader throws fmException with "line N: problem".
std::string SerializeSpectrumFile(const std::vector<fmResponseSpectrum>& spectra);
std::vector<fmResponseSpectrum> ParseSpectrumFile(std::string_view text);

// A spectrum name: not empty, one line, valid UTF-8, no surrounding blanks, not beginning
// with "=" or "@", at most 127 characters;
// empty text when acceptable, else why not.
std::string CheckSpectrumName(std::string_view name);

}  // namespace model
