#pragma once
#include <string>

#include "model/document.h"

// The demo host's open model: the document, where it lives, and whether it changed.
struct HostModel {
  model::ModelDocument doc;
  std::string path;
  bool modified = false;
  // What the last dialog's take-back did, for the status bar (empty: nothing to say).
  std::string status;
};
