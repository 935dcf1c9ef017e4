// The hint texts of batch runs and sub-commands.
#include "ui/BatchHints.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <map>

#include "base/Report.h"
#include "base/TextHelpers.h"

namespace plovix {

namespace {

// The Levenshtein distance of two texts.
size_t editDistance(const std::string& a, const std::string& b) {
  std::vector<size_t> row(b.size() + 1);
  for (size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (size_t i = 1; i <= a.size(); ++i) {
    size_t diagonal = row[0];
    row[0] = i;
    for (size_t j = 1; j <= b.size(); ++j) {
      const size_t above = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (a[i - 1] == b[j - 1] ? 0 : 1)});
      diagonal = above;
    }
  }
  return row[b.size()];
}

// Whether every character of `typed` comes in `known` in the same order (an abbreviation, "cntr").
bool isAbbreviationOf(const std::string& typed, const std::string& known) {
  size_t at = 0;
  for (const char c : known)
    if (at < typed.size() && typed[at] == c) ++at;
  return at == typed.size();
}

// How far a known name is from the typed one, for ranking: its edit distance, but 1 for an abbreviation or a
// name inside the other, with the edit distance breaking ties. `allowed` is false when it is too far to be
// meant.
size_t nameDistance(const std::string& typed, const std::string& known, bool& allowed) {
  constexpr size_t kTieBreak = 1000;
  allowed = !typed.empty() && !known.empty();
  if (!allowed) return 0;
  const size_t distance = std::min(editDistance(typed, known), kTieBreak - 1);
  if (distance > 1 && (isAbbreviationOf(typed, known) || typed.find(known) != std::string::npos))
    return kTieBreak + distance;
  allowed = distance <= std::max<size_t>(2, typed.size() / 3);
  return distance * kTieBreak;
}

std::string joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

}  // namespace

std::vector<std::string> closestModulonNames(const WizardCatalog& catalog, const std::string& name,
                                             size_t count) {
  const std::string typed = toLowerText(trimText(name));
  std::map<std::string, size_t> best;  // modulon name to its closest distance
  const auto consider = [&](const std::string& candidate, const std::string& modulon) {
    const std::string known = toLowerText(trimText(candidate));
    bool allowed = false;
    const size_t distance = nameDistance(typed, known, allowed);
    if (!allowed) return;
    const auto [at, fresh] = best.emplace(modulon, distance);
    if (!fresh) at->second = std::min(at->second, distance);
  };
  for (const CatalogEntry& entry : catalog.entries()) {
    consider(entry.name, entry.name);
    size_t start = 0;
    for (;;) {
      const size_t comma = entry.alias.find(',', start);
      consider(entry.alias.substr(start, comma - start), entry.name);
      if (comma == std::string::npos) break;
      start = comma + 1;
    }
  }
  std::vector<std::pair<size_t, std::string>> ranked;
  for (const auto& [modulon, distance] : best) ranked.emplace_back(distance, modulon);
  std::sort(ranked.begin(), ranked.end());
  std::vector<std::string> names;
  for (size_t i = 0; i < ranked.size() && i < count; ++i) names.push_back(ranked[i].second);
  return names;
}

bool catalogListsModulon(const WizardCatalog& catalog, const std::string& name) {
  return !catalog.findCommandLine(catalog.resolveAlias(name)).empty();
}

std::string unknownModulonHint(const WizardCatalog& catalog, const std::string& name) {
  const std::vector<std::string> names = closestModulonNames(catalog, name);
  if (names.empty()) return errorMessage(Msg::kHintUnknownModulonNoMatch, name);
  return errorMessage(Msg::kHintUnknownModulon, name, joined(names));
}

std::string directoryHint(const std::string& directoryText) {
  // Named without its trailing separator, as users write directories.
  std::string directory = directoryText;
  while (directory.size() > 1 && directory.back() == '/') directory.pop_back();
  const std::string path = directory.empty() ? std::string(".") : directory;
  struct stat info {};
  if (stat(path.c_str(), &info) != 0) {
    if (errno == ENOENT) return errorMessage(Msg::kHintDirectoryMissing, directory);
    return errorMessage(Msg::kHintDirectoryUnusable, directory, std::strerror(errno));
  }
  if (!S_ISDIR(info.st_mode))
    return errorMessage(Msg::kHintDirectoryUnusable, directory, std::strerror(ENOTDIR));
  if (access(path.c_str(), R_OK | X_OK) != 0)
    return errorMessage(Msg::kHintDirectoryUnusable, directory, std::strerror(errno));
  return {};
}

std::string emptyCatalogHint(const std::string& userLibraryPath, const std::string& libraryPath) {
  return errorMessage(Msg::kHintEmptyCatalog, userLibraryPath, libraryPath);
}

}  // namespace plovix
