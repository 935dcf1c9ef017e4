// What the core asks the host: library paths, the project root and top file, platform and device family.
#pragma once

#include <string>

namespace plovix {

// The user library path (user flag set) or the host's library path: ";"-separated directories.
std::string libraryPath(bool user);

// The project root as the host reports it into a 1024-byte buffer that starts as `previous`; the previous
// value stays when the host writes nothing.
std::string projectRoot(const std::string& previous);

// The name with extension of the project's top file; "null" when the host names none.
std::string projectTopFileName();

// The running platform's name for catalog scripts.
std::string platformName();

// The device family handed to plug-ins.
std::string deviceFamily();

}  // namespace plovix
