// The names each language can write: VHDL (1993) reserved words and identifiers, Verilog and SystemVerilog
// keywords and Verilog identifiers.
#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "base/TextHelpers.h"
#include "hdl/HdlChecks.h"

namespace plovix {

namespace {

// Sorted, for the binary search.
constexpr std::array<std::string_view, 97> kReservedWords = {
    "abs",          "access",     "after",      "alias",     "all",       "and",
    "architecture", "array",      "assert",     "attribute", "begin",     "block",
    "body",         "buffer",     "bus",        "case",      "component", "configuration",
    "constant",     "disconnect", "downto",     "else",      "elsif",     "end",
    "entity",       "exit",       "file",       "for",       "function",  "generate",
    "generic",      "group",      "guarded",    "if",        "impure",    "in",
    "inertial",     "inout",      "is",         "label",     "library",   "linkage",
    "literal",      "loop",       "map",        "mod",       "nand",      "new",
    "next",         "nor",        "not",        "null",      "of",        "on",
    "open",         "or",         "others",     "out",       "package",   "port",
    "postponed",    "procedure",  "process",    "pure",      "range",     "record",
    "register",     "reject",     "rem",        "report",    "return",    "rol",
    "ror",          "select",     "severity",   "shared",    "signal",    "sla",
    "sll",          "sra",        "srl",        "subtype",   "then",      "to",
    "transport",    "type",       "unaffected", "units",     "until",     "use",
    "variable",     "wait",       "when",       "while",     "with",      "xnor",
    "xor"};

constexpr bool sorted() {
  for (size_t i = 1; i < kReservedWords.size(); ++i)
    if (!(kReservedWords[i - 1] < kReservedWords[i])) return false;
  return true;
}
static_assert(sorted(), "kReservedWords must be sorted");

// Verilog (2005) keywords and the SystemVerilog ones (a tool that reads a .v file as SystemVerilog rejects
// them as names too), sorted.
constexpr std::array<std::string_view, 248> kVerilogKeywords = {"accept_on",
                                                                "alias",
                                                                "always",
                                                                "always_comb",
                                                                "always_ff",
                                                                "always_latch",
                                                                "and",
                                                                "assert",
                                                                "assign",
                                                                "assume",
                                                                "automatic",
                                                                "before",
                                                                "begin",
                                                                "bind",
                                                                "bins",
                                                                "binsof",
                                                                "bit",
                                                                "break",
                                                                "buf",
                                                                "bufif0",
                                                                "bufif1",
                                                                "byte",
                                                                "case",
                                                                "casex",
                                                                "casez",
                                                                "cell",
                                                                "chandle",
                                                                "checker",
                                                                "class",
                                                                "clocking",
                                                                "cmos",
                                                                "config",
                                                                "const",
                                                                "constraint",
                                                                "context",
                                                                "continue",
                                                                "cover",
                                                                "covergroup",
                                                                "coverpoint",
                                                                "cross",
                                                                "deassign",
                                                                "default",
                                                                "defparam",
                                                                "design",
                                                                "disable",
                                                                "dist",
                                                                "do",
                                                                "edge",
                                                                "else",
                                                                "end",
                                                                "endcase",
                                                                "endchecker",
                                                                "endclass",
                                                                "endclocking",
                                                                "endconfig",
                                                                "endfunction",
                                                                "endgenerate",
                                                                "endgroup",
                                                                "endinterface",
                                                                "endmodule",
                                                                "endpackage",
                                                                "endprimitive",
                                                                "endprogram",
                                                                "endproperty",
                                                                "endsequence",
                                                                "endspecify",
                                                                "endtable",
                                                                "endtask",
                                                                "enum",
                                                                "event",
                                                                "eventually",
                                                                "expect",
                                                                "export",
                                                                "extends",
                                                                "extern",
                                                                "final",
                                                                "first_match",
                                                                "for",
                                                                "force",
                                                                "foreach",
                                                                "forever",
                                                                "fork",
                                                                "forkjoin",
                                                                "function",
                                                                "generate",
                                                                "genvar",
                                                                "global",
                                                                "highz0",
                                                                "highz1",
                                                                "if",
                                                                "iff",
                                                                "ifnone",
                                                                "ignore_bins",
                                                                "illegal_bins",
                                                                "implements",
                                                                "implies",
                                                                "import",
                                                                "incdir",
                                                                "include",
                                                                "initial",
                                                                "inout",
                                                                "input",
                                                                "inside",
                                                                "instance",
                                                                "int",
                                                                "integer",
                                                                "interconnect",
                                                                "interface",
                                                                "intersect",
                                                                "join",
                                                                "join_any",
                                                                "join_none",
                                                                "large",
                                                                "let",
                                                                "liblist",
                                                                "library",
                                                                "local",
                                                                "localparam",
                                                                "logic",
                                                                "longint",
                                                                "macromodule",
                                                                "matches",
                                                                "medium",
                                                                "modport",
                                                                "module",
                                                                "nand",
                                                                "negedge",
                                                                "nettype",
                                                                "new",
                                                                "nexttime",
                                                                "nmos",
                                                                "nor",
                                                                "noshowcancelled",
                                                                "not",
                                                                "notif0",
                                                                "notif1",
                                                                "null",
                                                                "or",
                                                                "output",
                                                                "package",
                                                                "packed",
                                                                "parameter",
                                                                "pmos",
                                                                "posedge",
                                                                "primitive",
                                                                "priority",
                                                                "program",
                                                                "property",
                                                                "protected",
                                                                "pull0",
                                                                "pull1",
                                                                "pulldown",
                                                                "pullup",
                                                                "pulsestyle_ondetect",
                                                                "pulsestyle_onevent",
                                                                "pure",
                                                                "rand",
                                                                "randc",
                                                                "randcase",
                                                                "randsequence",
                                                                "rcmos",
                                                                "real",
                                                                "realtime",
                                                                "ref",
                                                                "reg",
                                                                "reject_on",
                                                                "release",
                                                                "repeat",
                                                                "restrict",
                                                                "return",
                                                                "rnmos",
                                                                "rpmos",
                                                                "rtran",
                                                                "rtranif0",
                                                                "rtranif1",
                                                                "s_always",
                                                                "s_eventually",
                                                                "s_nexttime",
                                                                "s_until",
                                                                "s_until_with",
                                                                "scalared",
                                                                "sequence",
                                                                "shortint",
                                                                "shortreal",
                                                                "showcancelled",
                                                                "signed",
                                                                "small",
                                                                "soft",
                                                                "solve",
                                                                "specify",
                                                                "specparam",
                                                                "static",
                                                                "string",
                                                                "strong",
                                                                "strong0",
                                                                "strong1",
                                                                "struct",
                                                                "super",
                                                                "supply0",
                                                                "supply1",
                                                                "sync_accept_on",
                                                                "sync_reject_on",
                                                                "table",
                                                                "tagged",
                                                                "task",
                                                                "this",
                                                                "throughout",
                                                                "time",
                                                                "timeprecision",
                                                                "timeunit",
                                                                "tran",
                                                                "tranif0",
                                                                "tranif1",
                                                                "tri",
                                                                "tri0",
                                                                "tri1",
                                                                "triand",
                                                                "trior",
                                                                "trireg",
                                                                "type",
                                                                "typedef",
                                                                "union",
                                                                "unique",
                                                                "unique0",
                                                                "unsigned",
                                                                "until",
                                                                "until_with",
                                                                "untyped",
                                                                "use",
                                                                "uwire",
                                                                "var",
                                                                "vectored",
                                                                "virtual",
                                                                "void",
                                                                "wait",
                                                                "wait_order",
                                                                "wand",
                                                                "weak",
                                                                "weak0",
                                                                "weak1",
                                                                "while",
                                                                "wildcard",
                                                                "wire",
                                                                "with",
                                                                "within",
                                                                "wor",
                                                                "xnor",
                                                                "xor"};

constexpr bool sortedKeywords() {
  for (size_t i = 1; i < kVerilogKeywords.size(); ++i)
    if (!(kVerilogKeywords[i - 1] < kVerilogKeywords[i])) return false;
  return true;
}
static_assert(sortedKeywords(), "kVerilogKeywords must be sorted");

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// A VHDL basic identifier: a letter, then letters, digits and single underscores, not ending in one.
bool isVhdlIdentifier(std::string_view name) {
  if (name.empty() || !isLetter(name.front()) || name.back() == '_') return false;
  for (size_t i = 0; i < name.size(); ++i) {
    const char c = name[i];
    if (c == '_' && name[i + 1] == '_') return false;
    if (c != '_' && !isLetter(c) && !isDigit(c)) return false;
  }
  return true;
}

// A Verilog simple identifier: a letter or underscore, then letters, digits, underscores and dollars.
bool isVerilogIdentifier(std::string_view name) {
  if (name.empty() || (!isLetter(name.front()) && name.front() != '_')) return false;
  return std::all_of(name.begin(), name.end(),
                     [](char c) { return isLetter(c) || isDigit(c) || c == '_' || c == '$'; });
}

}  // namespace

bool isVhdlReservedWord(std::string_view name) {
  const std::string word = toLowerText(name);
  return std::binary_search(kReservedWords.begin(), kReservedWords.end(), std::string_view(word)) ||
         !isVhdlIdentifier(name);
}

bool isVerilogKeyword(std::string_view name) {
  const std::string lower = toLowerText(name);
  const auto isKeyword = [](std::string_view word) {
    return std::binary_search(kVerilogKeywords.begin(), kVerilogKeywords.end(), word);
  };
  return isKeyword(name) || isKeyword(lower) || !isVerilogIdentifier(name);
}

}  // namespace plovix
