#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <mutex>

#include "tools/atomic_file.h"
#include "tools/data_location.h"
#include "tools/fm_exception.h"
#include "tools/parse.h"
#include "tools/shape_table.h"

// Where the shape libraries are found, the cached copies the dialogs read, and the import
// and export of the steel library.
namespace tools {
namespace {

struct State {
  std::mutex mutex;
  bool overridden = false;
  ShapeLibraryLocations locations;
  bool aiscLoaded = false;
  std::unique_ptr<AiscLibrary> aisc;
  bool ndsLoaded = false;
  std::unique_ptr<std::vector<fmSect_NDS>> nds;
};

State& state() {
  static State s;
  return s;
}

bool IsFile(const std::string& path) {
  struct stat st {};
  return ::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

bool HasAiscLibrary(const std::string& dir) {
  return !dir.empty() && IsFile(dir + "/" + kAiscIndexFile) && IsFile(dir + "/" + kAiscTableFile);
}

// Creates a folder and its parents.
void MakeFolders(const std::string& dir) {
  for (size_t i = 1; i <= dir.size(); ++i) {
    if (i < dir.size() && dir[i] != '/') continue;
    const std::string part = dir.substr(0, i);
    if (::mkdir(part.c_str(), 0777) != 0 && errno != EEXIST)
      throw fmException("Cannot create the folder \"" + part + "\": " + SystemErrorText(errno));
  }
}

void Rename(const std::string& from, const std::string& to) {
  if (std::rename(from.c_str(), to.c_str()) != 0)
    throw fmException("Cannot replace \"" + to + "\": " + SystemErrorText(errno));
}

}  // namespace

ShapeLibraryLocations DefaultShapeLibraryLocations() {
  ShapeLibraryLocations l;
  if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg && *xdg == '/')
    l.user = std::string(xdg) + "/norvane";
  else if (const char* home = std::getenv("HOME"); home && *home)
    l.user = std::string(home) + "/.local/share/norvane";
  if (const char* dir = std::getenv("NORVANE_DATA_DIR"); dir && *dir)
    l.installed = dir;
  else
    l.installed = InstalledDataDirectory();
  return l;
}

ShapeLibraryLocations CurrentShapeLibraryLocations() {
  State& s = state();
  std::lock_guard lock(s.mutex);
  return s.overridden ? s.locations : DefaultShapeLibraryLocations();
}

void SetShapeLibraryLocations(const ShapeLibraryLocations& locations) {
  {
    State& s = state();
    std::lock_guard lock(s.mutex);
    s.overridden = !locations.installed.empty() || !locations.user.empty();
    s.locations = locations;
  }
  ReloadShapeLibrary();
}

std::string ActiveAiscDirectory() {
  const ShapeLibraryLocations l = CurrentShapeLibraryLocations();
  return HasAiscLibrary(l.user) ? l.user : l.installed;
}

const AiscLibrary* CurrentAiscLibrary() {
  const ShapeLibraryLocations l = CurrentShapeLibraryLocations();
  State& s = state();
  std::lock_guard lock(s.mutex);
  if (!s.aiscLoaded) {
    s.aiscLoaded = true;
    // A damaged user copy must not take the shapes away: fall back to the installed one.
    for (const std::string& dir : {l.user, l.installed}) {
      if (!HasAiscLibrary(dir)) continue;
      try {
        s.aisc = std::make_unique<AiscLibrary>(AiscLibrary::LoadFrom(dir));
        break;
      } catch (const fmException&) {
      }
    }
  }
  return s.aisc.get();
}

void ReloadShapeLibrary() {
  State& s = state();
  std::lock_guard lock(s.mutex);
  s.aiscLoaded = false;
  s.aisc.reset();
  s.ndsLoaded = false;
  s.nds.reset();
}

const std::vector<fmSect_NDS>* CurrentNdsTable() {
  const ShapeLibraryLocations l = CurrentShapeLibraryLocations();
  State& s = state();
  std::lock_guard lock(s.mutex);
  if (!s.ndsLoaded) {
    s.ndsLoaded = true;
    for (const std::string& dir : {l.user, l.installed}) {
      const std::string path = dir + "/" + kNdsTableFile;
      if (dir.empty() || !IsFile(path)) continue;
      try {
        s.nds = std::make_unique<std::vector<fmSect_NDS>>(ParseNdsTable(ReadWholeFile(path, size_t(16) << 20), path));
        break;
      } catch (const std::exception&) {
      }
    }
  }
  return s.nds.get();
}

bool get_shape_index(std::vector<AiscShapeIndexEntry>& index) {
  const AiscLibrary* lib = CurrentAiscLibrary();
  if (!lib) return false;
  index.clear();
  index.reserve(lib->size());
  for (size_t i = 0; i < lib->size(); ++i)
    index.push_back({lib->at(i).label, lib->at(i).type, static_cast<uint32_t>(i)});
  return true;
}

int get_shape(std::string_view label) {
  const AiscLibrary* lib = CurrentAiscLibrary();
  return lib ? lib->Find(label) : -1;
}

bool get_aisc_shape(int index, fmSect_AISC& shape) {
  const AiscLibrary* lib = CurrentAiscLibrary();
  if (!lib || index < 0 || static_cast<size_t>(index) >= lib->size()) return false;
  shape = lib->at(static_cast<size_t>(index));
  return true;
}

int get_nds_shape(std::string_view label) {
  const auto* table = CurrentNdsTable();
  if (!table) return -1;
  const std::string_view key = Trim(label);
  for (size_t i = 0; i < table->size(); ++i)
    if (!key.empty() && EqualsNoCase((*table)[i].label, key)) return static_cast<int>(i);
  return -1;
}

void ascii_binary(const std::string& path) {
  std::string text;
  try {
    text = ReadWholeFile(path, kMaxAiscCsvBytes);
  } catch (const FileError& e) {
    throw fmException(e.what());
  }
  const AiscLibrary library(ParseAiscCsv(text, path));
  const std::string table = library.SerializeTable(), index = library.SerializeIndex();

  // Only the user's copy changes; the installed library is never written. Both new files
  // are complete on disk before either old one is moved aside, and the old ones stay as
  // ".bak". Should the swap stop half-way, the checksum in the index tells the pair apart
  // and the reader falls back to the installed library.
  const std::string dir = CurrentShapeLibraryLocations().user;
  if (dir.empty()) throw fmException("Cannot import: no per-user data folder (HOME is not set).");
  MakeFolders(dir);
  const std::string idx = dir + "/" + kAiscIndexFile, tbl = dir + "/" + kAiscTableFile;
  try {
    WriteFileAtomically(tbl + ".new", table);
    WriteFileAtomically(idx + ".new", index);
  } catch (const FileError& e) {
    std::remove((tbl + ".new").c_str());
    std::remove((idx + ".new").c_str());
    throw fmException(e.what());
  }
  bool idxMoved = false, tblMoved = false;
  try {
    if (IsFile(idx)) {
      Rename(idx, idx + ".bak");
      idxMoved = true;
    }
    if (IsFile(tbl)) {
      Rename(tbl, tbl + ".bak");
      tblMoved = true;
    }
    Rename(tbl + ".new", tbl);
    Rename(idx + ".new", idx);
  } catch (const fmException&) {
    // Put back what was there before this import.
    if (idxMoved) std::rename((idx + ".bak").c_str(), idx.c_str());
    if (tblMoved) std::rename((tbl + ".bak").c_str(), tbl.c_str());
    std::remove((tbl + ".new").c_str());
    std::remove((idx + ".new").c_str());
    ReloadShapeLibrary();
    throw;
  }
  ReloadShapeLibrary();
}

void binary_ascii(const std::string& path) {
  const AiscLibrary* lib = CurrentAiscLibrary();
  if (!lib) throw fmException("The steel shape library cannot be read; there is nothing to export.");
  try {
    WriteFileAtomically(path, WriteAiscCsv(*lib));
  } catch (const FileError& e) {
    throw fmException(e.what());
  }
}

}  // namespace tools
