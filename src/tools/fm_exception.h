#pragma once
#include <stdexcept>
#include <string>

// The exception the model and tools layers throw; the receiving dialog shows its text.
class fmException : public std::runtime_error {
 public:
  explicit fmException(const std::string& message) : std::runtime_error(message) {}
  const char* GetMessage() const { return what(); }
};
