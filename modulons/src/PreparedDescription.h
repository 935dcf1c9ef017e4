// Reading back the values of a variation from the description the manager prepares for an edit.
#pragma once

#include <string>
#include <vector>

namespace plovix::wizard {

struct PrivateValue {
  std::string name, type, value;
};

// The PRIVATE: statements of a CNX text, in order (tokens cut as the CNX format cuts them).
std::vector<PrivateValue> readPrivateValues(const std::string& cnxText);

// The whole file, or empty when it cannot be read.
std::string readWholeFile(const std::string& path);

}  // namespace plovix::wizard
