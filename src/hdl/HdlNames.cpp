// The names each language can write: VHDL (1993) reserved words and identifiers, Verilog keywords and
// identifiers.
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

// Verilog (2005) keywords, sorted.
constexpr std::array<std::string_view, 124> kVerilogKeywords = {"always",
                                                                "and",
                                                                "assign",
                                                                "automatic",
                                                                "begin",
                                                                "buf",
                                                                "bufif0",
                                                                "bufif1",
                                                                "case",
                                                                "casex",
                                                                "casez",
                                                                "cell",
                                                                "cmos",
                                                                "config",
                                                                "deassign",
                                                                "default",
                                                                "defparam",
                                                                "design",
                                                                "disable",
                                                                "edge",
                                                                "else",
                                                                "end",
                                                                "endcase",
                                                                "endconfig",
                                                                "endfunction",
                                                                "endgenerate",
                                                                "endmodule",
                                                                "endprimitive",
                                                                "endspecify",
                                                                "endtable",
                                                                "endtask",
                                                                "event",
                                                                "for",
                                                                "force",
                                                                "forever",
                                                                "fork",
                                                                "function",
                                                                "generate",
                                                                "genvar",
                                                                "highz0",
                                                                "highz1",
                                                                "if",
                                                                "ifnone",
                                                                "incdir",
                                                                "include",
                                                                "initial",
                                                                "inout",
                                                                "input",
                                                                "instance",
                                                                "integer",
                                                                "join",
                                                                "large",
                                                                "liblist",
                                                                "library",
                                                                "localparam",
                                                                "macromodule",
                                                                "medium",
                                                                "module",
                                                                "nand",
                                                                "negedge",
                                                                "nmos",
                                                                "nor",
                                                                "noshowcancelled",
                                                                "not",
                                                                "notif0",
                                                                "notif1",
                                                                "or",
                                                                "output",
                                                                "parameter",
                                                                "pmos",
                                                                "posedge",
                                                                "primitive",
                                                                "pull0",
                                                                "pull1",
                                                                "pulldown",
                                                                "pullup",
                                                                "pulsestyle_ondetect",
                                                                "pulsestyle_onevent",
                                                                "rcmos",
                                                                "real",
                                                                "realtime",
                                                                "reg",
                                                                "release",
                                                                "repeat",
                                                                "rnmos",
                                                                "rpmos",
                                                                "rtran",
                                                                "rtranif0",
                                                                "rtranif1",
                                                                "scalared",
                                                                "showcancelled",
                                                                "signed",
                                                                "small",
                                                                "specify",
                                                                "specparam",
                                                                "strong0",
                                                                "strong1",
                                                                "supply0",
                                                                "supply1",
                                                                "table",
                                                                "task",
                                                                "time",
                                                                "tran",
                                                                "tranif0",
                                                                "tranif1",
                                                                "tri",
                                                                "tri0",
                                                                "tri1",
                                                                "triand",
                                                                "trior",
                                                                "trireg",
                                                                "unsigned",
                                                                "use",
                                                                "uwire",
                                                                "vectored",
                                                                "wait",
                                                                "wand",
                                                                "weak0",
                                                                "weak1",
                                                                "while",
                                                                "wire",
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
