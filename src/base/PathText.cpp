// Implementation of the path text operations.
#include "base/PathText.h"

#include <cctype>

#include "base/TextHelpers.h"

namespace plovix {

namespace {

struct PathParts {
  std::string drive, directory, baseName, extension;
};

PathParts partsOf(std::string_view pathIn) {
  const std::string path = trimText(pathIn);
  PathParts parts;
  if (path.empty()) return parts;
  size_t pos = 0;
  if (path.size() >= 2 && std::isalpha(static_cast<unsigned char>(path[0])) && path[1] == ':') {
    parts.drive = path.substr(0, 2);
    pos = 2;
  }
  const size_t lastSeparator = path.find_last_of("/\\");
  size_t nameStart = pos;
  if (lastSeparator != std::string::npos && lastSeparator >= pos) {
    parts.directory = path.substr(pos, lastSeparator + 1 - pos);
    nameStart = lastSeparator + 1;
  }
  const std::string name = path.substr(nameStart);
  const size_t dot = name.rfind('.');
  if (dot == std::string::npos) {
    parts.baseName = name;
  } else {
    parts.baseName = name.substr(0, dot);
    parts.extension = name.substr(dot);
  }
  return parts;
}

}  // namespace

std::string splitPath(std::string_view path, PathPart part) {
  PathParts parts = partsOf(path);
  switch (part) {
    case PathPart::kDrive:
      return parts.drive;
    case PathPart::kDirectory:
      return parts.directory;
    case PathPart::kBaseName:
      return parts.baseName;
    case PathPart::kExtension:
      return parts.extension;
  }
  return {};
}

std::string directoryOfPath(std::string_view path) {
  const PathParts parts = partsOf(path);
  return parts.drive + parts.directory;
}

std::string nameWithExtension(std::string_view path) {
  const PathParts parts = partsOf(path);
  return parts.baseName + parts.extension;
}

std::string pathWithoutExtension(std::string_view path) {
  const PathParts parts = partsOf(path);
  return parts.drive + parts.directory + parts.baseName;
}

std::string toForwardSlashes(std::string_view path) {
  return replaceAll(path, "\\", "/");
}

std::string toBackslashes(std::string_view path) {
  return replaceAll(path, "/", "\\");
}

std::string rootOfPath(std::string_view path) {
  if (startsWith(path, "\\\\")) {
    const size_t end = path.find('\\', 2);
    return std::string(path.substr(0, end));
  }
  return toUpperText(splitPath(path, PathPart::kDrive));
}

}  // namespace plovix
