#pragma once

// Start-up and shut-down of the dialog library: links its string table and templates
// into the resource chain (behind any the host linked) and registers its dialog classes.
bool NorvaneDlgsStartup();
void NorvaneDlgsShutdown();

class NorvaneDlgsLibrary {
 public:
  NorvaneDlgsLibrary() { NorvaneDlgsStartup(); }
  ~NorvaneDlgsLibrary() { NorvaneDlgsShutdown(); }
  NorvaneDlgsLibrary(const NorvaneDlgsLibrary&) = delete;
  NorvaneDlgsLibrary& operator=(const NorvaneDlgsLibrary&) = delete;
};
