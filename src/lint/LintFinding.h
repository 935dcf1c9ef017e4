// One thing an HDL tool said about a file, and reading a tool's output into them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plovix {

struct LintFinding {
  std::string tool;     // "ghdl", "iverilog", "verilator" or "yosys"
  std::string file;     // as the tool names it; empty when it names none
  int line = 0;         // 0 when the tool gives none
  std::string message;  // the tool's words after the place, its severity word kept
  bool error = false;   // an error rather than a warning or note
};

// The findings in what `tool` printed (standard output and error together), in order. Lines that only show
// the source and a caret, summaries ("2 error(s) during elaboration") and progress notes are left out.
std::vector<LintFinding> parseToolOutput(std::string_view tool, std::string_view output);

}  // namespace plovix
