// Finding the variation design files that plovix --check looks at.
#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <set>

#include "Check.h"
#include "base/OutputKinds.h"
#include "base/PathText.h"
#include "base/TextHelpers.h"

namespace plovix {

namespace {

bool isVariationFile(const std::string& path) {
  if (!isOutputExtension(splitPath(path, PathPart::kExtension))) return false;
  const std::string modulon = readModulonNameOfFile(path);
  return !modulon.empty() && modulon != kNotWizardMarker;
}

// The path of `name` in `directory` as the user will read it: "." adds nothing in front.
std::string joinPath(const std::string& directory, const std::string& name) {
  if (directory == ".") return name;
  return directory.back() == '/' ? directory + name : directory + "/" + name;
}

// Every variation file in `directory` and below, entries in byte order, not following links.
void walk(const std::string& directory, std::vector<std::string>& found) {
  DIR* handle = opendir(directory.c_str());
  if (handle == nullptr) return;
  std::vector<std::pair<std::string, bool>> entries;  // name, is a directory
  while (const dirent* entry = readdir(handle)) {
    const std::string name = entry->d_name;
    if (name == "." || name == "..") continue;
    struct stat info {};
    if (lstat(joinPath(directory, name).c_str(), &info) != 0) continue;
    if (S_ISDIR(info.st_mode) && name[0] != '.') {
      entries.emplace_back(name, true);
    } else if (S_ISREG(info.st_mode)) {
      entries.emplace_back(name, false);
    }
  }
  closedir(handle);
  std::sort(entries.begin(), entries.end());
  for (const auto& [name, isDirectory] : entries) {
    const std::string path = joinPath(directory, name);
    if (isDirectory) {
      walk(path, found);
    } else if (isVariationFile(path)) {
      found.push_back(path);
    }
  }
}

// "NAME_enc.EXT" beside a variation file "NAME.*" is that variation's native-language copy.
bool isNativeCopy(const std::string& path, const std::set<std::string>& stems) {
  const std::string stem = pathWithoutExtension(path);
  return endsWith(stem, "_enc") && stems.count(stem.substr(0, stem.size() - 4)) > 0;
}

}  // namespace

std::vector<std::string> findVariationFiles(const std::vector<std::string>& paths,
                                            std::vector<UnreadablePath>& unreadable) {
  std::vector<std::string> found;
  for (const std::string& given : paths.empty() ? std::vector<std::string>{"."} : paths) {
    struct stat info {};
    if (stat(given.c_str(), &info) != 0) {
      unreadable.push_back({given, errno});
    } else if (S_ISDIR(info.st_mode)) {
      DIR* probe = opendir(given.c_str());
      if (probe == nullptr) {
        unreadable.push_back({given, errno});
        continue;
      }
      closedir(probe);
      walk(given, found);
    } else if (isVariationFile(given)) {
      found.push_back(given);
    }
  }
  std::sort(found.begin(), found.end());
  found.erase(std::unique(found.begin(), found.end()), found.end());
  std::set<std::string> stems;
  for (const std::string& path : found) stems.insert(pathWithoutExtension(path));
  std::erase_if(found, [&](const std::string& path) { return isNativeCopy(path, stems); });
  return found;
}

}  // namespace plovix
