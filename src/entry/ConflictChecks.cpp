// The checks before a variation's files are written: sub-module name clash, same-name design files, and
// existing companion and symbol files.
#include "entry/ConflictChecks.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <vector>

#include "base/FileSystem.h"
#include "base/OutputKinds.h"
#include "base/PathText.h"
#include "base/QuestionTexts.h"
#include "base/TextHelpers.h"

namespace plovix {

namespace {

// The characters a renamed variation's last character is chosen from, in order of preference.
constexpr std::string_view kRenameCharacters = "abcdefghijklmnopqrstuvwxyz0123456789_";

// The directory the checks look in: the run's, or the project directory when the run has none.
std::string checkDirectory(const ManagerRun& run, const std::string& projectDirectory) {
  return run.directory.empty() ? projectDirectory : run.directory;
}

}  // namespace

std::string resolveSubComponentClash(UserInterface& ui, const ManagerRun& run) {
  const std::string name = toLowerText(run.fileTitle);
  std::set<char> used;
  bool clash = false;
  if (run.description != nullptr) {
    for (const CnxModule& module : run.description->modules) {
      if (!name.empty()) used.insert(name.back());
      if (toLowerText(module.moduleName.view()) == name) {
        clash = true;
        break;
      }
    }
  }
  if (!clash) return run.fileTitle;

  char replacement = kRenameCharacters.front();
  for (char c : kRenameCharacters) {
    if (used.count(c) == 0) {
      replacement = c;
      break;
    }
  }
  std::string newName = run.fileTitle;
  if (!newName.empty()) newName.pop_back();
  newName += replacement;
  ui.report(questions::renamedVariation(run.fileTitle, newName));
  return newName;
}

bool confirmSameNameFiles(UserInterface& ui, const ManagerRun& run, const std::string& projectDirectory) {
  const std::string directory = checkDirectory(run, projectDirectory);
  int count = 0;
  std::string list;
  for (const DirectoryEntry& entry : listDirectory(directory, run.fileTitle + ".*")) {
    if (entry.isDirectory) continue;
    const std::string extension = splitPath(entry.name, PathPart::kExtension);
    if (extension == run.extension || !isDesignExtension(extension)) continue;
    ++count;
    list += entry.name + "\n";
  }
  if (count == 0) return true;
  return ui.ask(questions::sameNameFiles(count, list));
}

std::string listExistingOutputs(const ManagerRun& run, const std::string& projectDirectory, bool companions,
                                bool symbol) {
  const std::string base = checkDirectory(run, projectDirectory) + run.fileTitle;
  std::string list;
  if (companions) {
    // Each companion extension once, in table order: the include file, then the component declaration.
    std::vector<std::string_view> listed;
    for (const OutputKind& kind : kOutputKinds) {
      const std::string_view extension = kind.companionExtension;
      if (std::find(listed.begin(), listed.end(), extension) != listed.end()) continue;
      listed.push_back(extension);
      const std::string path = base + std::string(extension);
      if (fileExists(path)) list += "  " + path + "\n";
    }
  }
  if (symbol && fileExists(base + ".sym"))
    list += "  " + base + ".sym" + "\n" + questions::symbolUpdateNote();
  if (list.empty()) return {};
  return questions::overwriteExistingOutputs(list);
}

}  // namespace plovix
