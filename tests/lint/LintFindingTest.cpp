// What each tool prints, read into findings: the place, the words and whether it is an error.
#include <gtest/gtest.h>

#include "lint/LintFinding.h"

namespace plovix {
namespace {

TEST(LintFindingTest, ToolLinesGiveFindings) {
  struct Row {
    const char* tool;
    const char* line;
    const char* file;  // nullptr: not a finding
    int number;
    const char* message;
    bool error;
  };
  const Row rows[] = {
      {"ghdl", "a.vhd:12:5: no declaration for \"b\"", "a.vhd", 12, "no declaration for \"b\"", true},
      {"ghdl", "a.vhd:69:27:warning: static range violates bounds", "a.vhd", 69,
       "warning: static range violates bounds", false},
      {"ghdl", "/usr/bin/ghdl-mcode:error: bound check failure at a.vhd:56", "", 0,
       "/usr/bin/ghdl-mcode:error: bound check failure at a.vhd:56", true},
      {"iverilog", "dir/a.v:51: error: Unable to bind wire/reg/memory `y' in `m'", "dir/a.v", 51,
       "error: Unable to bind wire/reg/memory `y' in `m'", true},
      {"iverilog", "a.v:3: warning: Port 1 (q) of m expects 8 bits, got 1.", "a.v", 3,
       "warning: Port 1 (q) of m expects 8 bits, got 1.", false},
      {"iverilog", "2 error(s) during elaboration.", nullptr, 0, "", false},
      {"verilator", "%Warning-WIDTH: a.v:45:12: Operator ASSIGNW expects 8 bits", "a.v", 45,
       "Warning-WIDTH: Operator ASSIGNW expects 8 bits", false},
      {"verilator", "%Error: a.v:1:45: Can't find definition of variable: 'c'", "a.v", 1,
       "Error: Can't find definition of variable: 'c'", true},
      {"verilator", "%Error: Exiting due to 1 error(s)", nullptr, 0, "", false},
      {"verilator", "    1 | module m; endmodule", nullptr, 0, "", false},
      {"yosys", "a.v:41: ERROR: Incompatible re-declaration of wire \\q.", "a.v", 41,
       "ERROR: Incompatible re-declaration of wire \\q.", true},
      {"yosys", "Warning: Wire m.\\c is used but has no driver.", "", 0,
       "Warning: Wire m.\\c is used but has no driver.", false},
      {"yosys", "Removed 3 unused modules.", nullptr, 0, "", false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.line);
    const std::vector<LintFinding> findings = parseToolOutput(row.tool, std::string(row.line) + "\n");
    if (row.file == nullptr) {
      EXPECT_TRUE(findings.empty());
      continue;
    }
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings[0].tool, row.tool);
    EXPECT_EQ(findings[0].file, row.file);
    EXPECT_EQ(findings[0].line, row.number);
    EXPECT_EQ(findings[0].message, row.message);
    EXPECT_EQ(findings[0].error, row.error);
  }
}

}  // namespace
}  // namespace plovix
