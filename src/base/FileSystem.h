// File-system queries: existence and access, the working directory, full paths, resolving typed paths.
#pragma once

#include <string>
#include <vector>

#include "base/UserInterface.h"

namespace plovix {

bool fileExists(const std::string& path);
bool isReadable(const std::string& path);
bool isDirectory(const std::string& path);
// Whether an existing file may be replaced: not write-protected in the safe writer's sense (writeProtection).
bool isWritable(const std::string& path);

// True when no such file exists; otherwise whether deleting it succeeded.
bool deleteFile(const std::string& path);

// The working directory; empty when it cannot be read.
std::string currentDirectory();

// The path joined to the working directory and normalised lexically ("." and ".." folded, "\" taken as "/"),
// without resolving links; a trailing separator is kept. Empty for an empty path.
std::string fullPath(const std::string& path);

// Changes the working directory to the full path of `path`.
bool changeDirectory(const std::string& path);

// The full path of the running program.
std::string programPath();

// The value of an environment variable; empty when unset.
std::string environmentVariable(const std::string& name);

// Whether `path` names a directory, or a file in an existing directory. Reports error 21 when it does not.
// The working directory is always restored.
bool resolvePath(UserInterface& ui, const std::string& path, std::string& outDirectory, std::string& outFile);

// resolvePath taken relative to `directory`; false without a message when `directory` cannot be entered.
bool findInDirectory(UserInterface& ui, const std::string& path, const std::string& directory,
                     std::string& outDirectory, std::string& outFile);

struct DirectoryEntry {
  std::string name;
  bool isDirectory = false;
  unsigned long long size = 0;
  long long modifiedTime = 0;  // seconds since the epoch
};

// The entries of a directory (without "." and "..") whose names match the wildcard pattern ("*" and "?"),
// sorted by name in byte order. Sets `errorNumber` (when given) and returns nothing when it cannot be listed.
std::vector<DirectoryEntry> listDirectory(const std::string& directory, const std::string& pattern = "*",
                                          int* errorNumber = nullptr);

// Wildcard matching of a name against a pattern of "*" and "?", case-sensitive.
bool matchesWildcard(const std::string& name, const std::string& pattern);

}  // namespace plovix
