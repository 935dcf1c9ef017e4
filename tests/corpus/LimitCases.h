// The limits corpus (tests/corpus/limits/<name>.cnx): one small description per HDL construct that the
// shared corpus does not hold already, and the corpus and limits cases together.
#pragma once

#include <iterator>
#include <string>
#include <vector>

#include "CorpusCase.h"

namespace plovix::testing {

inline const char* const kLimitCases[] = {
    "upper_parameter",  "numeric_default", "number_drives_bit",   "constant_slice",
    "one_bit_bus",      "inverted_output", "pin_read_twice",      "main_slices",
    "sliced_feeds",     "reserved_names",  "bit_of_bus",          "slice_to_port",
    "slice_above_zero", "two_instances",   "constant_above_zero", "inverted_slice"};

inline bool isLimitCase(const std::string& name) {
  for (const char* limit : kLimitCases)
    if (name == limit) return true;
  return false;
}

// The case's CNX text, from the corpus or the limits corpus.
inline std::string caseText(const std::string& name) {
  return TempDir::readFile(corpusDir() + (isLimitCase(name) ? "limits/" : "") + name + ".cnx");
}

// Every case of both corpora, the shared corpus first.
inline std::vector<std::string> corpusAndLimitCases() {
  std::vector<std::string> names(std::begin(kCorpusCases), std::end(kCorpusCases));
  names.insert(names.end(), std::begin(kLimitCases), std::end(kLimitCases));
  return names;
}

}  // namespace plovix::testing
