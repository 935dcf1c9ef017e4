// Taking path texts apart and joining them: drive, directory, base name, extension, separators, roots.
#pragma once

#include <string>
#include <string_view>

namespace plovix {

enum class PathPart { kDrive, kDirectory, kBaseName, kExtension };

// One part of the trimmed path; "\" and "/" both separate. The directory runs from after the drive up to and
// including the last separator; the extension starts at the last dot of the file name.
std::string splitPath(std::string_view path, PathPart part);

// Drive + directory, keeping the trailing separator.
std::string directoryOfPath(std::string_view path);
// Base name + extension.
std::string nameWithExtension(std::string_view path);
// Drive + directory + base name.
std::string pathWithoutExtension(std::string_view path);

std::string toForwardSlashes(std::string_view path);
std::string toBackslashes(std::string_view path);

// Two leading backslashes and the host name for a network path, else the drive in capitals.
std::string rootOfPath(std::string_view path);

}  // namespace plovix
