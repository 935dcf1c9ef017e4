// Path helpers the pages share: the directory a typed name is taken against, and making a directory.
// Pages show paths as they are, with "/".
#pragma once

#include <string>

namespace plovix {

// The directory as an absolute path with a trailing "/": an empty one is the working directory, a relative
// one is taken from the working directory.
std::string absoluteDirectory(const std::string& directory);

// Creates one directory level; false when it could not be made.
bool createOneDirectory(const std::string& directory);

}  // namespace plovix
