// Opening the modulon page, Browse..., Back and the checks on Next.
#include "pages/ModulonSelectionPage.h"

#include "base/FileSystem.h"
#include "base/OutputKinds.h"
#include "base/PathText.h"
#include "base/QuestionTexts.h"
#include "base/Report.h"
#include "base/TextHelpers.h"
#include "pages/FileList.h"
#include "pages/PageHost.h"
#include "pages/PagePaths.h"
#include "pages/PageTexts.h"

namespace plovix {

void ModulonSelectionPage::open(PageContext& context) {
  openFrame();
  enableControl(kControlFinish, false);
  setDefaultButton(kControlNext);

  tree.build(context.catalog.entries(), modulonName);
  if (tree.selectedByName()) focusControl = kControlModulonTree;

  outputText = trimRight(outputText);
  if (outputText.empty()) outputText = directory;
  editText = outputText;

  libraryDirectories.clear();
  for (const std::string& library : context.catalog.userLibraryDirectories()) {
    if (!library.empty()) libraryDirectories.push_back(library);
  }

  const OutputKind* kind = outputKindOfExtension(extension);
  languageIndex = (kind != nullptr ? *kind : outputKind(OutputLanguage::kThdl)).buttonIndex;
}

std::string ModulonSelectionPage::checkedExtension() const {
  const OutputKind* kind = outputKindOfButton(languageIndex);
  return std::string((kind != nullptr ? *kind : outputKind(OutputLanguage::kThdl)).designExtension);
}

SaveFileRequest ModulonSelectionPage::browseRequest(PageContext& context) const {
  SaveFileRequest request;
  request.title = pagetexts::kSaveDialogTitle;
  request.filter = pagetexts::kSaveDialogFilter;
  const std::string text = trimText(editText);
  std::string splitDirectory;
  std::string splitFile;
  if (!text.empty() &&
      findInDirectory(context.ui, text, absoluteDirectory(directory), splitDirectory, splitFile)) {
    request.initialDirectory = splitDirectory;
    request.fileName = splitFile;
  } else {
    request.initialDirectory = absoluteDirectory(directory);
  }
  return request;
}

void ModulonSelectionPage::applyBrowseChoice(const std::string& chosenPath) {
  editText = chosenPath;
}

bool ModulonSelectionPage::pressBack(PageContext& context, const std::optional<PixelRect>& window) {
  outputText = editText;
  extension = checkedExtension();
  modulonName = tree.selectedText();
  storePosition(context.corner, window);
  result = PageResult::kBack;
  return true;
}

bool ModulonSelectionPage::pressNext(PageContext& context, const std::optional<PixelRect>& window) {
  if (!WizardPageFrame::pressNext(context, window)) return false;
  outputText = editText;
  return true;
}

bool ModulonSelectionPage::validatePage(PageContext& context) {
  UserInterface& ui = context.ui;
  const std::string text = trimText(editText);
  if (text.empty()) {
    reportError(ui, Msg::kSpecifyFileToCreate);
    focusControl = kControlOutputName;
    return false;
  }
  if (tree.selected() == ModulonTree::kNoItem || tree.hasChildren(tree.selected())) {
    reportError(ui, Msg::kSelectAvailableModulon);
    focusControl = kControlModulonTree;
    return false;
  }
  modulonName = tree.selectedText();

  std::string splitDirectory;
  std::string fileName;
  if (!findInDirectory(ui, text, absoluteDirectory(directory), splitDirectory, fileName)) {
    reportError(ui, Msg::kIllegalDirectoryPath);
    focusControl = kControlOutputName;
    return false;
  }
  if (!isDirectory(splitDirectory)) {
    if (!ui.ask(questions::createDirectory(splitDirectory))) {
      focusControl = kControlOutputName;
      return false;
    }
    if (!createOneDirectory(splitDirectory)) {
      reportError(ui, Msg::kCannotCreateDirectory, splitDirectory);
      focusControl = kControlOutputName;
      return false;
    }
  }
  directory = splitDirectory;

  if (fileName.empty()) {
    reportError(ui, Msg::kNoFileName);
    focusControl = kControlOutputName;
    return false;
  }
  if (fileName.find_first_of(" \t") != std::string::npos) {
    reportError(ui, Msg::kBlanksInFileName);
    focusControl = kControlOutputName;
    return false;
  }
  const std::string typedExtension = splitPath(fileName, PathPart::kExtension);
  if (typedExtension.empty()) {
    extension = checkedExtension();
    baseName = fileName;
  } else if (isOutputExtension(typedExtension)) {
    extension = typedExtension;
    baseName = fileName.substr(0, fileName.size() - typedExtension.size());
  } else {
    reportError(ui, Msg::kIllegalExtension);
    focusControl = kControlOutputName;
    return false;
  }

  if (!context.catalog.supports2D(modulonName) && !offerThdlFallback(ui, extension)) return false;
  if (!checkOutputFileName(ui, extension, baseName)) {
    focusControl = kControlOutputName;
    return false;
  }

  const std::string path = directory + baseName + extension;
  if (fileExists(path)) {
    if (!isWritable(path)) {
      reportError(ui, Msg::kWriteProtected, path);
      focusControl = kControlOutputName;
      return false;
    }
    // Replacing a file that no wizard generated is the question batch does not answer OK by itself.
    const std::string question = questions::overwriteFile(path);
    const bool replace = signatureNamesModulon(readModulonNameOfFile(path))
                             ? ui.ask(question)
                             : ui.askToReplaceUserFile(question, path);
    if (!replace) return false;
  }
  return true;
}

}  // namespace plovix
