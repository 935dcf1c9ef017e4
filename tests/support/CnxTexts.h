// The texts of a description's names and bounds, for comparing records with expected texts.
#pragma once

#include <string>
#include <vector>

#include "cnx/Bounds.h"
#include "cnx/TextPool.h"

namespace plovix::testing {

inline std::vector<std::string> textsOf(const std::vector<Name>& names) {
  std::vector<std::string> texts;
  for (Name name : names) texts.push_back(name.str());
  return texts;
}

// The four values of a shape as written: width1 low1 width2 low2.
inline std::vector<std::string> textsOf(const Shape& shape) {
  return {shape.rows.width.text(), shape.rows.low.text(), shape.bits.width.text(), shape.bits.low.text()};
}

}  // namespace plovix::testing
