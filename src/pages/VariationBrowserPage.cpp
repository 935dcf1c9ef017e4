// Opening the browser page, its events, Back and the checks on Next.
#include "pages/VariationBrowserPage.h"

#include <cerrno>
#include <cstdio>

#include "base/FileSystem.h"
#include "base/Messages.h"
#include "base/OutputKinds.h"
#include "base/PathText.h"
#include "base/QuestionTexts.h"
#include "base/Report.h"
#include "base/TextHelpers.h"
#include "catalog/WizardCatalog.h"
#include "pages/PageHost.h"
#include "pages/PagePaths.h"
#include "pages/PageTexts.h"

namespace plovix {

namespace {

// Splitting while the user types must not show boxes on every keystroke.
class SilentInterface : public UserInterface {
 public:
  void report(const std::string&) override {}
  bool ask(const std::string&) override { return false; }
};

bool hasWildcard(const std::string& text) {
  return text.find_first_of("*?") != std::string::npos;
}

}  // namespace

void VariationBrowserPage::open(PageContext& context) {
  openFrame();
  if (caption.empty()) caption = std::string(kManagerName) + " " + std::string(pagetexts::kBrowserTitle);

  directory = absoluteDirectory(directory);
  lookIn.collectDrives(context.ui);
  lookIn.fillFor(directory);

  fileTypes.clear();
  std::string allPatterns;
  for (const OutputKind& kind : kOutputKinds) {
    if (!allPatterns.empty()) allPatterns += ", ";
    allPatterns += "*" + std::string(kind.designExtension);
  }
  fileTypes.emplace_back("All modulon files (" + allPatterns + ")", allPatterns);
  for (const OutputKind& kind : kOutputKinds) {
    const std::string pattern = "*" + std::string(kind.designExtension);
    fileTypes.emplace_back(std::string(kind.displayName) + " files (" + pattern + ")", pattern);
  }
  selectFileTypeOf(extension);

  wizardOnlyChecked = showOnlyWizardFiles;
  list = FileList();  // the list of an earlier showing is gone with its window
  list.wizardOnly = wizardOnlyChecked;
  selectedItem = -1;
  list.fill(context.ui, directory, currentPattern());

  changeFileName(baseName + extension);
  focusControl = kControlFileName;

  modulonItems.clear();
  modulonItems.emplace_back(kNotWizardMarker);
  for (const CatalogEntry& entry : context.catalog.entries()) modulonItems.push_back(entry.name);
  modulonText = std::string(kNotWizardMarker);
  for (const std::string& item : modulonItems) {
    if (item == modulonName) modulonText = item;
  }

  enableControl(kControlFinish, false);
  setDefaultButton(kControlNext);
}

std::string VariationBrowserPage::currentPattern() const {
  if (!wizardOnlyChecked || fileTypes.empty()) return "*.*";
  return fileTypes[static_cast<size_t>(selectedFileType)].second;
}

void VariationBrowserPage::selectFileTypeOf(const std::string& fileExtension) {
  // The first type is every modulon file; then one type per output kind, in table order.
  selectedFileType = outputKindIndexOfExtension(fileExtension) + 1;
}

std::string VariationBrowserPage::modulonNamedBy(const std::string& path) const {
  const std::string name = readModulonNameOfFile(path);
  return signatureNamesModulon(name) ? name : std::string(kNotWizardMarker);
}

bool VariationBrowserPage::navigateTo(PageContext& context, const std::string& path,
                                      const std::string& pattern) {
  if (!list.fill(context.ui, path, pattern)) return false;
  selectedItem = -1;
  directory = path;
  lookIn.fillFor(directory);
  return true;
}

void VariationBrowserPage::chooseLookIn(PageContext& context, int index) {
  if (index < 0 || index >= static_cast<int>(lookIn.items().size())) return;
  const std::string path = lookIn.items()[static_cast<size_t>(index)].path;
  if (!navigateTo(context, path, currentPattern())) lookIn.fillFor(directory);
}

void VariationBrowserPage::selectFileType(PageContext& context, int index) {
  if (index < 0 || index >= static_cast<int>(fileTypes.size())) return;
  selectedFileType = index;
  const std::string previous = fileNameText;
  changeFileName(fileTypes[static_cast<size_t>(index)].second);
  applyTypedText(context, false);
  changeFileName(previous);
}

void VariationBrowserPage::clickWizardOnly(PageContext& context) {
  wizardOnlyChecked = !wizardOnlyChecked;
  showOnlyWizardFiles = wizardOnlyChecked;
  list.wizardOnly = wizardOnlyChecked;
  applyTypedText(context, true);
}

void VariationBrowserPage::changeFileName(const std::string& text) {
  fileNameText = text;
  if (text.empty() || hasWildcard(text)) return;
  SilentInterface silent;
  std::string splitDirectory;
  std::string splitFile;
  if (findInDirectory(silent, text, directory, splitDirectory, splitFile)) {
    modulonText = modulonNamedBy(splitDirectory + splitFile);
  }
}

void VariationBrowserPage::clickItem(int index) {
  if (index < 0 || index >= static_cast<int>(list.items().size())) return;
  selectedItem = index;
  const FileListItem& item = list.items()[static_cast<size_t>(index)];
  if (item.kind != kFolderKind) changeFileName(item.name);
}

bool VariationBrowserPage::doubleClickItem(PageContext& context, int index,
                                           const std::optional<PixelRect>& window) {
  if (index < 0 || index >= static_cast<int>(list.items().size())) return false;
  selectedItem = index;
  const FileListItem item = list.items()[static_cast<size_t>(index)];
  if (item.kind == kFolderKind) {
    navigateTo(context, directory + item.name + "/", currentPattern());
    return false;
  }
  changeFileName(item.name);
  return pressNext(context, window);
}

int VariationBrowserPage::renameTarget() const {
  if (list.items().empty()) return -1;
  return selectedItem >= 0 ? selectedItem : 0;
}

bool VariationBrowserPage::renameItem(PageContext& context, int index, const std::string& newName) {
  if (index < 0 || index >= static_cast<int>(list.items().size()) || newName.empty()) return false;
  const std::string oldName = list.items()[static_cast<size_t>(index)].name;
  if (newName == oldName) return false;
  const std::string oldPath = directory + oldName;
  const std::string newPath = directory + newName;
  if (fileExists(newPath)) {
    reportError(context.ui, Msg::kAlreadyExists, newName);
    return false;
  }
  if (!fileExists(oldPath)) {
    reportError(context.ui, Msg::kDoesNotExist, oldName);
    return false;
  }
  if (std::rename(oldPath.c_str(), newPath.c_str()) != 0) {
    reportFileErrno(context.ui, errno, oldPath);
    return false;
  }
  list.renameItem(static_cast<size_t>(index), newName);
  return true;
}

void VariationBrowserPage::upOneLevel(PageContext& context) {
  focusControl = kControlFileList;
  if (directory == "/" || directory == lookIn.rootOf(directory) + "/") return;
  std::string parent = directory.substr(0, directory.size() - 1);
  const size_t slash = parent.rfind('/');
  if (slash == std::string::npos) return;
  parent.erase(slash + 1);
  navigateTo(context, parent, currentPattern());
}

bool VariationBrowserPage::splitTyped(PageContext& context, const std::string& text,
                                      std::string& outDirectory, std::string& outFile) const {
  if (text.empty()) {
    outDirectory = directory;
    outFile.clear();
    return true;
  }
  return findInDirectory(context.ui, text, directory, outDirectory, outFile);
}

bool VariationBrowserPage::applyTypedText(PageContext& context, bool nextForm) {
  const std::string text = trimText(fileNameText);
  std::string splitDirectory;
  std::string splitFile;
  if (!splitTyped(context, text, splitDirectory, splitFile)) {
    reportError(context.ui, Msg::kPathInvalid, text);
    return false;
  }
  bool listed = false;
  const bool plainName = !splitFile.empty() && !hasWildcard(splitFile);
  if (splitFile.empty()) {
    listed = list.fill(context.ui, splitDirectory, "*.*");
  } else if (!plainName) {
    listed = list.fill(context.ui, splitDirectory, splitFile);
  } else if (nextForm) {
    listed = list.fill(context.ui, splitDirectory, "*.*");
  }
  if (!listed) return false;
  selectedItem = -1;
  directory = splitDirectory;
  changeFileName(splitFile);
  if (plainName) selectFileTypeOf(splitPath(splitFile, PathPart::kExtension));
  lookIn.fillFor(directory);
  modulonText = modulonNamedBy(splitDirectory + splitFile);
  return true;
}

bool VariationBrowserPage::pressBack(PageContext& context, const std::optional<PixelRect>& window) {
  modulonName = modulonText;
  showOnlyWizardFiles = wizardOnlyChecked;
  baseName = splitPath(fileNameText, PathPart::kBaseName);
  extension = splitPath(fileNameText, PathPart::kExtension);
  const std::string lookInPath = lookIn.selectedPath();
  if (!lookInPath.empty()) directory = lookInPath;
  storePosition(context.corner, window);
  result = PageResult::kBack;
  return true;
}

bool VariationBrowserPage::validatePage(PageContext& context) {
  UserInterface& ui = context.ui;
  std::string text = trimText(fileNameText);
  if (text.empty()) {
    reportError(ui, Msg::kSpecifyFileToEdit);
    focusControl = kControlFileName;
    return false;
  }
  const std::string modulonWhenPressed = modulonText;
  bool applied = true;
  if (text.find_first_of("*?/") != std::string::npos) applied = applyTypedText(context, true);
  text = trimText(fileNameText);
  modulonText = modulonWhenPressed;
  if (text.empty() || hasWildcard(text)) return false;

  if (text.find_first_of(" \t") != std::string::npos) {
    reportError(ui, Msg::kBlanksInFileName);
    focusControl = kControlFileName;
    return false;
  }
  const std::string typedExtension = splitPath(text, PathPart::kExtension);
  if (!isOutputExtension(typedExtension)) {
    if (applied) reportError(ui, Msg::kIllegalExtension);
    focusControl = kControlFileName;
    return false;
  }
  if (WizardCatalog::isNotWizardMarker(modulonText)) {
    reportError(ui, Msg::kSpecifyModulonName);
    focusControl = kControlModulonBox;
    return false;
  }
  std::string splitDirectory;
  std::string splitFile;
  if (!findInDirectory(ui, text, directory, splitDirectory, splitFile)) {
    reportError(ui, Msg::kPathInvalid, text);
    focusControl = kControlFileName;
    return false;
  }
  const std::string path = splitDirectory + splitFile;
  if (!fileExists(path)) {
    if (!ui.ask(questions::fileDoesNotExistCreateIt(path))) return false;
    if (WizardCatalog::isNotWizardMarker(modulonText)) {
      reportError(ui, Msg::kSpecifyModulonName);
      focusControl = kControlModulonBox;
      return false;
    }
    newVariation = true;
  } else {
    const std::string fileModulon = readModulonNameOfFile(path);
    if (signatureNamesModulon(fileModulon)) {
      if (fileModulon == modulonText) {
        newVariation = false;
      } else {
        if (!ui.ask(questions::basedOnOtherModulon(path, fileModulon, modulonText))) return false;
        newVariation = true;
      }
    } else {
      if (!ui.askToReplaceUserFile(questions::notWizardGenerated(path), path)) return false;
      newVariation = true;
    }
  }

  if (trimText(modulonText).empty() || WizardCatalog::isNotWizardMarker(modulonText)) {
    reportError(ui, Msg::kSpecifyModulonName);
    focusControl = kControlModulonBox;
    return false;
  }
  modulonName = context.catalog.resolveAlias(modulonText);
  if (context.catalog.findCommandLine(modulonName).empty()) {
    reportError(ui, Msg::kModulonNotListed, modulonName);
    focusControl = kControlModulonBox;
    return false;
  }
  baseName = splitPath(path, PathPart::kBaseName);
  extension = splitPath(path, PathPart::kExtension);
  directory = directoryOfPath(path);
  return true;
}

}  // namespace plovix
