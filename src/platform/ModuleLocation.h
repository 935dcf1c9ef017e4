// Where a module loaded at run time (the Qt front end) lies, found from the file of the running binary.
#pragma once

#include <string>
#include <vector>

namespace plovix {

// The paths where the module file `fileName` may be, in the order to try: the install's private library
// folder as seen from the binary that holds this code (the plovix command in bin/, or libvamlet.so in the
// library folder), and, for a binary inside the build tree, the build tree's module folder.
std::vector<std::string> moduleCandidates(const std::string& fileName);

}  // namespace plovix
