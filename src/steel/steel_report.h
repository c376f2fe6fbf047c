#pragma once
#include <ostream>
#include <string>
#include <string_view>

// The step-by-step report of the steel member check: an HTML document into which the
// design object writes each limit state with its clause, equation and numbers.
namespace steel {

// Numbers in the report: four significant digits (whole numbers from 10,000), "C" conventions;
// infinity as "∞".
std::string Num(double value);

// The document's head and foot; the title is "steel design report".
void WriteReportHead(std::ostream& out, std::string_view heading);
void WriteReportFoot(std::ostream& out);

// Writes to a stream when one is set; otherwise every call does nothing.
class Report {
 public:
  Report() = default;
  explicit Report(std::ostream* out) : out_(out) {}
  bool On() const { return out_ != nullptr; }

  void Heading(std::string_view text) const;  // a sub-heading within a load set
  void Text(std::string_view text) const;     // a plain paragraph (escaped)
  // One step: clause ("E3"), equation number ("E3-4", or empty), the equation, the numbers
  // put into it and the result with its unit.
  void Step(std::string_view clause, std::string_view equation, std::string_view formula,
            std::string_view numbers, std::string_view result) const;
  // A result line that the reader should find first (governing strength, ratio).
  void Result(std::string_view text) const;

 private:
  std::ostream* out_ = nullptr;
};

}  // namespace steel

// A titled block of the report, opened on construction and closed on destruction.
class ProblemPrintArea {
 public:
  ProblemPrintArea(std::ostream* out, const wchar_t* title);
  ProblemPrintArea(std::ostream* out, std::string_view title);
  ~ProblemPrintArea();
  ProblemPrintArea(const ProblemPrintArea&) = delete;
  ProblemPrintArea& operator=(const ProblemPrintArea&) = delete;

 private:
  std::ostream* out_;
};
