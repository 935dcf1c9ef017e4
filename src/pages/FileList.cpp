// Filling, sorting and showing the browser page's list.
#include "pages/FileList.h"

#include <algorithm>
#include <cerrno>

#include "base/FileSystem.h"
#include "base/Format.h"
#include "base/OutputKinds.h"
#include "base/PathText.h"
#include "base/QuestionTexts.h"
#include "base/TextHelpers.h"
#include "catalog/WizardCatalog.h"
#include "pages/ModulonTree.h"
#include "pages/PageTexts.h"

namespace plovix {

int FileList::imageOfKind(int kind) {
  switch (kind) {
    case 0:
      return 0;  // THDL
    case 1:
      return 2;  // VHDL
    case 2:
      return 1;  // Verilog
    case kFolderKind:
      return 3;
    default:
      return 4;
  }
}

bool signatureNamesModulon(const std::string& nameRead) {
  return !nameRead.empty() && !WizardCatalog::isNotWizardMarker(nameRead);
}

int fileKindOf(const std::string& directory, const std::string& name) {
  const int kind = outputKindIndexOfExtension(splitPath(name, PathPart::kExtension));
  if (kind < 0) return kOtherFileKind;
  return signatureNamesModulon(readModulonNameOfFile(directory + name)) ? kind : kOtherFileKind;
}

namespace {

bool matchesPattern(const std::string& name, const std::string& pattern) {
  return pattern == "*.*" || matchesWildcard(name, pattern);
}

std::vector<std::string> patternsOf(const std::string& patternText) {
  std::vector<std::string> patterns;
  std::string rest = patternText;
  for (;;) {
    std::string pattern = splitFirstToken(rest, " ,");
    if (pattern.empty()) break;
    patterns.push_back(std::move(pattern));
  }
  return patterns;
}

}  // namespace

bool FileList::fill(UserInterface& ui, const std::string& directory, const std::string& patternText) {
  std::vector<DirectoryEntry> entries;
  for (;;) {
    int errorNumber = 0;
    entries = listDirectory(directory, "*", &errorNumber);
    if (errorNumber == 0) break;
    if (errorNumber != ENOMEDIUM) return false;
    if (!ui.ask(questions::driveNotReady(directory.substr(0, 3)))) return false;
  }

  items_.clear();
  for (const DirectoryEntry& entry : entries) {
    if (entry.isDirectory) items_.push_back({entry.name, 0, kFolderKind, entry.modifiedTime});
  }
  for (const std::string& pattern : patternsOf(patternText)) {
    for (const DirectoryEntry& entry : entries) {
      if (entry.isDirectory || !matchesPattern(entry.name, pattern)) continue;
      const int kind = fileKindOf(directory, entry.name);
      if (wizardOnly && kind == kOtherFileKind) continue;
      items_.push_back({entry.name, static_cast<uint32_t>(entry.size), kind, entry.modifiedTime});
    }
  }
  sortBy(kColumnName);
  return true;
}

void FileList::sortBy(int column) {
  std::stable_sort(items_.begin(), items_.end(), [column](const FileListItem& a, const FileListItem& b) {
    switch (column) {
      case kColumnSize:
        return a.size < b.size;
      case kColumnType:
        return a.kind < b.kind;
      case kColumnModified:
        return a.modifiedTime < b.modifiedTime;
      default:
        return alphabeticallyBefore(a.name, b.name);
    }
  });
}

std::string FileList::columnText(const FileListItem& item, int column) {
  switch (column) {
    case kColumnName:
      return item.name;
    case kColumnSize:
      return item.kind == kFolderKind ? std::string() : formatText("%u", item.size);
    case kColumnType:
      if (item.kind == kFolderKind) return std::string(pagetexts::kFolderType);
      if (item.kind < 0) return {};
      return std::string(kOutputKinds[static_cast<size_t>(item.kind)].displayName);
    case kColumnModified:
      return formatLastModified(item.modifiedTime);
    default:
      return {};
  }
}

std::string formatLastModified(const std::tm& time) {
  const int hour = time.tm_hour % 12 == 0 ? 12 : time.tm_hour % 12;
  return formatText("%d/%.2d/%.2d  %d:%.2d %s", time.tm_mon + 1, time.tm_mday, (time.tm_year + 1900) % 100,
                    hour, time.tm_min, time.tm_hour >= 12 ? "PM" : "AM");
}

std::string formatLastModified(long long secondsSinceEpoch) {
  const std::time_t seconds = static_cast<std::time_t>(secondsSinceEpoch);
  std::tm local{};
  if (localtime_r(&seconds, &local) == nullptr) return {};
  return formatLastModified(local);
}

}  // namespace plovix
