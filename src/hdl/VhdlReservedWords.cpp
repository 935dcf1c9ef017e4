// The reserved words of VHDL (1993), which no port, generic or entity of a library can be named.
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

}  // namespace

bool isVhdlReservedWord(std::string_view name) {
  const std::string word = toLowerText(name);
  return std::binary_search(kReservedWords.begin(), kReservedWords.end(), std::string_view(word));
}

}  // namespace plovix
