#pragma once
#include <array>
#include <string>
#include <string_view>

#include <locale.h>

namespace tools {

// Switches the calling thread to the "C" conventions while it lives, for libraries that
// write numbers through printf, whatever the process locale is.
class ScopedCLocale {
 public:
  ScopedCLocale();
  ~ScopedCLocale();
  ScopedCLocale(const ScopedCLocale&) = delete;
  ScopedCLocale& operator=(const ScopedCLocale&) = delete;

 private:
  locale_t previous_;
};

// printf-style formatting that always uses the "C" conventions ("1.5", never "1,5"),
// whatever locale the host process or Qt has set.
std::string Format(const char* fmt, ...) __attribute__((format(printf, 1, 2)));

// "%g" of a real, the way grid cells and reports write reals.
std::string FormatG(double value);
// The same into the caller's buffer, for fills of millions of cells that need no string of
// their own; the text stays valid while the buffer does.
std::string_view FormatG(double value, std::array<char, 32>& buffer);

// "%d" of an integer (ids, counts), without printf's cost: grids of a million ids are
// numbered through here.
std::string FormatInt(long long value);

// Text for HTML or XML: & < > " and ' as entities, everything else as it is.
void AppendHtmlEscaped(std::string& out, std::string_view text);
std::string HtmlEscape(std::string_view text);

}  // namespace tools
