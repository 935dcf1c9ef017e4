// The modulon page in the terminal: the tree as an indented numbered list, the language, the output name.
#include "base/Format.h"
#include "base/OutputKinds.h"
#include "base/TextHelpers.h"
#include "catalog/WizardCatalog.h"
#include "pages/PageTexts.h"
#include "ui/ConsoleFrontEnd.h"
#include "ui/ConsoleTexts.h"

namespace plovix {

namespace {

constexpr std::string_view kLanguageButtons[] = {pagetexts::kThdlButton, pagetexts::kVhdlButton,
                                                 pagetexts::kVerilogButton};

}  // namespace

PageResult ConsoleFrontEnd::showModulonPage(ModulonSelectionPage& page, PageContext& context) {
  page.open(context);
  const std::vector<std::pair<int, std::string>> focusNames = {
      {kControlModulonTree, consoletexts::kModulonTree}, {kControlOutputName, consoletexts::kOutputName}};
  for (;;) {
    printTitle(page.windowTitle(""));
    print(formatText("%s\n%s\n", std::string(pagetexts::kModulonQuestion).c_str(),
                     consoleLabel(pagetexts::kModulonTreeLabel).c_str()));
    const auto order = page.tree.displayOrder();
    for (size_t i = 0; i < order.size(); ++i) {
      const auto [index, depth] = order[i];
      const ModulonTree::Item& item = page.tree.item(index);
      print(formatText("%c%3zu  %s%s%s\n", index == page.tree.selected() ? '*' : ' ', i + 1,
                       std::string(static_cast<size_t>(depth) * 2, ' ').c_str(), item.text.c_str(),
                       item.image == ModulonTree::kFolderImage ? "/" : ""));
    }
    std::string languages = consoleLabel(pagetexts::kTypeQuestion) + " ";
    for (int i = 0; i < 3; ++i) {
      languages += formatText(" [%c] %s", i == page.languageIndex ? 'x' : ' ',
                              consoleLabel(kLanguageButtons[i]).c_str());
    }
    print(languages + "\n");
    print(formatText("%s %s\n", consoleLabel(pagetexts::kOutputNameLabel).c_str(), page.editText.c_str()));
    print(formatText("%s\n", std::string(pagetexts::kLibraryListLabel).c_str()));
    for (const std::string& library : page.libraryDirectories) print(formatText("    %s\n", library.c_str()));
    print(formatText("%s\n", std::string(pagetexts::kProjectNote).c_str()));
    printFocus(page, focusNames);

    std::string line;
    if (!prompt(std::string(consoletexts::kModulonCommands), line)) {
      break;
    }
    const std::string command = line.substr(0, line.find(' '));
    const std::string argument = line.size() > command.size() ? trimText(line.substr(command.size())) : "";
    if (const size_t number = consoleNumber(command); number > 0) {
      if (number <= order.size()) page.tree.select(order[number - 1].first);
    } else if (const OutputKind* kind = outputKindOfCliWord(command)) {
      page.languageIndex = kind->buttonIndex;
    } else if (command == "o") {
      page.editText = argument;
    } else if (command == "w") {
      const SaveFileRequest request = page.browseRequest(context);
      print(formatText("%s (%s%s)\n", request.title.c_str(), request.initialDirectory.c_str(),
                       request.fileName.c_str()));
      std::string chosen;
      if (prompt(std::string(consoletexts::kBrowseHint), chosen) && !chosen.empty())
        page.applyBrowseChoice(chosen);
    } else if (command == "n") {
      if (page.pressNext(context, std::nullopt)) return page.result;
    } else if (command == "b") {
      if (page.pressBack(context, std::nullopt)) return page.result;
    } else if (command == "c") {
      break;
    }
  }
  page.pressCancel();
  return page.result;
}

}  // namespace plovix
