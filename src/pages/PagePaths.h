// Path helpers the pages share: the directory a typed name is taken against, and paths as pages show them.
#pragma once

#include <string>

namespace plovix {

// The directory as an absolute path with a trailing "/": an empty one is the working directory, a relative
// one is taken from the working directory.
std::string absoluteDirectory(const std::string& directory);

// A path as the pages show it: every "/" shown as "\".
std::string shownPath(const std::string& path);

// Creates one directory level; false when it could not be made.
bool createOneDirectory(const std::string& directory);

}  // namespace plovix
