// Finding the file a program name starts: the search path, the ".exe" rule and the java runtime's name.
#pragma once

#include <string>

namespace plovix {

// A name with "/" is taken as it is, or with ".exe" appended when only that file exists. A name without "/"
// is looked for on the ":"-separated search path (an empty entry is the working directory), as it is and
// with ".exe", among executable regular files; "javaw", which Linux does not have, falls back to "java".
// Empty when a name without "/" is found nowhere.
std::string findProgram(const std::string& name, const std::string& searchPath);

// findProgram on the environment's PATH, or on "/usr/bin:/bin" when PATH is not set.
std::string findProgramOnPath(const std::string& name);

}  // namespace plovix
