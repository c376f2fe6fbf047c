#include "steel/steel_report.h"

#include <cmath>

#include "tools/format.h"

namespace steel {

std::string Num(double value) {
  if (std::isinf(value)) return value > 0 ? "∞" : "-∞";
  if (std::isnan(value)) return "n/a";
  // Large values whole (29000, not 2.9e+04); the rest to four significant digits.
  if (std::abs(value) >= 1e4 && std::abs(value) < 1e15) return tools::Format("%.0f", value);
  return tools::Format("%.4g", value);
}

void WriteReportHead(std::ostream& out, std::string_view heading) {
  out << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
         "<title>steel design report</title>\n<style>\n"
         "body{font-family:sans-serif;font-size:14px;margin:1.5em;}\n"
         "h1{font-size:20px;} h2{font-size:17px;border-bottom:1px solid #888;margin-top:1.6em;}\n"
         "h3{font-size:15px;margin:1em 0 0.3em 0;}\n"
         "table.steps{border-collapse:collapse;} table.steps td{padding:2px 8px;vertical-align:top;}\n"
         "td.clause{color:#555;white-space:nowrap;} td.eq{color:#555;white-space:nowrap;}\n"
         "td.res{font-weight:bold;white-space:nowrap;} p.result{font-weight:bold;}\n"
         "</style>\n</head>\n<body>\n<h1>"
      << tools::HtmlEscape(heading) << "</h1>\n";
}

void WriteReportFoot(std::ostream& out) { out << "</body>\n</html>\n"; }

void Report::Heading(std::string_view text) const {
  if (out_) *out_ << "<h3>" << tools::HtmlEscape(text) << "</h3>\n";
}

void Report::Text(std::string_view text) const {
  if (out_) *out_ << "<p>" << tools::HtmlEscape(text) << "</p>\n";
}

void Report::Step(std::string_view clause, std::string_view equation, std::string_view formula,
                  std::string_view numbers, std::string_view result) const {
  if (!out_) return;
  *out_ << "<table class=\"steps\"><tr><td class=\"clause\">" << tools::HtmlEscape(clause) << "</td><td class=\"eq\">";
  if (!equation.empty()) *out_ << '(' << tools::HtmlEscape(equation) << ')';
  *out_ << "</td><td>" << tools::HtmlEscape(formula);
  if (!numbers.empty()) *out_ << " = " << tools::HtmlEscape(numbers);
  *out_ << "</td><td class=\"res\">= " << tools::HtmlEscape(result) << "</td></tr></table>\n";
}

void Report::Result(std::string_view text) const {
  if (out_) *out_ << "<p class=\"result\">" << tools::HtmlEscape(text) << "</p>\n";
}

}  // namespace steel

namespace {
std::string Narrow(const wchar_t* text) {
  std::string out;
  for (; text && *text; ++text) {
    const auto c = static_cast<unsigned long>(*text);
    if (c < 0x80) {
      out.push_back(static_cast<char>(c));
    } else if (c < 0x800) {
      out.push_back(static_cast<char>(0xC0 | (c >> 6)));
      out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else if (c < 0x10000) {
      out.push_back(static_cast<char>(0xE0 | (c >> 12)));
      out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
      out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else {
      out.push_back(static_cast<char>(0xF0 | (c >> 18)));
      out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
      out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
      out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    }
  }
  return out;
}
}  // namespace

ProblemPrintArea::ProblemPrintArea(std::ostream* out, const wchar_t* title) : ProblemPrintArea(out, Narrow(title)) {}

ProblemPrintArea::ProblemPrintArea(std::ostream* out, std::string_view title) : out_(out) {
  if (out_) *out_ << "<div class=\"area\">\n<h2>" << tools::HtmlEscape(title) << "</h2>\n";
}

ProblemPrintArea::~ProblemPrintArea() {
  if (out_) *out_ << "</div>\n";
}
