// Reading the messages of GHDL, Icarus Verilog, Verilator and Yosys: place, severity and words.
#include "lint/LintFinding.h"

#include <algorithm>
#include <cctype>
#include <climits>

#include "base/TextFile.h"
#include "base/TextHelpers.h"

namespace plovix {

namespace {

bool startsWithWord(std::string_view text, std::string_view word) {
  if (text.size() < word.size()) return false;
  for (size_t i = 0; i < word.size(); ++i)
    if (std::tolower(static_cast<unsigned char>(text[i])) != word[i]) return false;
  return true;
}

// Reads decimal digits at `at`; -1 when there are none. Values too large for an int count as none.
int readNumber(std::string_view text, size_t& at) {
  const size_t start = at;
  long long value = 0;
  while (at < text.size() && std::isdigit(static_cast<unsigned char>(text[at])) && value <= INT_MAX) {
    value = value * 10 + (text[at] - '0');
    ++at;
  }
  if (at == start || value > INT_MAX) return -1;
  return static_cast<int>(value);
}

// "FILE:LINE[:COLUMN]:" at the start of `text`: the file, the line and the rest after it, trimmed.
bool splitPlace(std::string_view text, std::string& file, int& line, std::string_view& rest) {
  for (size_t colon = text.find(':'); colon != std::string_view::npos; colon = text.find(':', colon + 1)) {
    if (colon == 0 || text.substr(0, colon).find_first_of(" \t") != std::string_view::npos) return false;
    size_t at = colon + 1;
    const int number = readNumber(text, at);
    if (number < 0) continue;
    if (at < text.size() && text[at] == ':') {
      ++at;
      size_t column = at;
      if (readNumber(text, column) >= 0 && column < text.size() && text[column] == ':') at = column + 1;
    } else if (at != text.size()) {
      continue;
    }
    file = std::string(text.substr(0, colon));
    line = number;
    rest = text.substr(std::min(at, text.size()));
    while (!rest.empty() && rest.front() == ' ') rest.remove_prefix(1);
    return true;
  }
  return false;
}

bool severityIsError(std::string_view message) {
  return !(startsWithWord(message, "warning") || startsWithWord(message, "note") ||
           startsWithWord(message, "info"));
}

// Verilator: "%Warning-CODE: FILE:LINE:COL: words", "%Error: FILE:LINE:COL: words", "%Error: words".
bool readVerilatorLine(std::string_view text, LintFinding& finding) {
  if (!startsWith(text, "%")) return false;
  const size_t colon = text.find(": ");
  if (colon == std::string_view::npos) return false;
  const std::string_view severity = text.substr(1, colon - 1);
  std::string_view rest = text.substr(colon + 2);
  if (startsWith(rest, "Exiting due to")) return false;
  std::string_view words = rest;
  if (!splitPlace(rest, finding.file, finding.line, words)) finding.file.clear();
  finding.error = startsWith(severity, "Error");
  finding.message = std::string(severity) + ": " + std::string(words);
  return true;
}

// Yosys: "FILE:LINE: Warning: words", "FILE:LINE: ERROR: words", "Warning: words", "ERROR: words".
bool readYosysLine(std::string_view text, LintFinding& finding) {
  std::string_view words = text;
  if (!splitPlace(text, finding.file, finding.line, words)) finding.file.clear();
  if (!startsWith(words, "Warning: ") && !startsWith(words, "ERROR: ")) return false;
  finding.error = startsWith(words, "ERROR");
  finding.message = std::string(words);
  return true;
}

// GHDL ("FILE:LINE:COL:words", "FILE:LINE:COL:warning: words") and Icarus ("FILE:LINE: error: words");
// a line without a place counts only when it says it is an error.
bool readPlainLine(std::string_view text, LintFinding& finding) {
  std::string_view words;
  if (splitPlace(text, finding.file, finding.line, words)) {
    if (words.empty()) return false;
    finding.error = severityIsError(words);
    finding.message = std::string(words);
    return true;
  }
  const size_t error = text.find("error:");
  if (error == std::string_view::npos) return false;
  finding.file.clear();
  finding.error = true;
  finding.message = std::string(text);
  return true;
}

}  // namespace

std::vector<LintFinding> parseToolOutput(std::string_view tool, std::string_view output) {
  std::vector<LintFinding> findings;
  for (const std::string& raw : splitLines(output)) {
    std::string_view text = raw;
    while (!text.empty() && (text.back() == '\r' || text.back() == ' ')) text.remove_suffix(1);
    if (text.empty() || text.front() == ' ' || text.front() == '\t') continue;
    LintFinding finding;
    finding.tool = std::string(tool);
    const bool read = tool == "verilator" ? readVerilatorLine(text, finding)
                      : tool == "yosys"   ? readYosysLine(text, finding)
                                          : readPlainLine(text, finding);
    if (read) findings.push_back(std::move(finding));
  }
  return findings;
}

}  // namespace plovix
