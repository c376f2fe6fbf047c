#pragma once
#include <map>
#include <memory>
#include <string>

#include "model/document.h"

// The demo host's open model: the document, where it lives, and whether it changed.
struct HostModel {
  model::ModelDocument doc;
  std::string path;
  bool modified = false;
  // What the last dialog's take-back did, for the status bar (empty: nothing to say).
  std::string status;
  // Options given with --show for the dialog it opens ("kind" -> "1"), read by its binding.
  std::map<std::string, std::string> showOptions;
  // What a binding keeps alive while its dialog runs (the results' solved structure).
  std::shared_ptr<void> dialogState;
  // The document as the running dialog found it: OK that changed nothing leaves the model
  // unmodified.
  std::string documentBefore;
};
