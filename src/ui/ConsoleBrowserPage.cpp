// The browser page in the terminal: the folder as a numbered listing, with commands to change folder,
// filter, rename and choose.
#include "base/Format.h"
#include "base/OutputKinds.h"
#include "base/TextHelpers.h"
#include "pages/PageTexts.h"
#include "ui/ConsoleFrontEnd.h"
#include "ui/ConsoleTexts.h"

namespace plovix {

void ConsoleFrontEnd::printBrowserPage(const VariationBrowserPage& page) {
  printTitle(page.windowTitle(""));
  print(formatText("%s\n%s %s\n", std::string(pagetexts::kBrowserQuestion).c_str(),
                   consoleLabel(pagetexts::kLookInLabel).c_str(), page.lookIn.selectedPath().c_str()));
  const std::vector<FileListItem>& items = page.list.items();
  for (size_t i = 0; i < items.size(); ++i) {
    const FileListItem& item = items[i];
    const std::string name = item.kind == kFolderKind ? item.name + "/" : item.name;
    if (page.list.detailedView) {
      print(formatText("%c%3zu  %-24s %10s  %-12s %s\n", static_cast<int>(i) == page.selectedItem ? '*' : ' ',
                       i + 1, name.c_str(), FileList::columnText(item, kColumnSize).c_str(),
                       FileList::columnText(item, kColumnType).c_str(),
                       FileList::columnText(item, kColumnModified).c_str()));
    } else {
      print(formatText("%c%3zu  %s\n", static_cast<int>(i) == page.selectedItem ? '*' : ' ', i + 1,
                       name.c_str()));
    }
  }
  print(formatText("%s %s\n", consoleLabel(pagetexts::kFileNameLabel).c_str(), page.fileNameText.c_str()));
  print(formatText("%s %s\n", consoleLabel(pagetexts::kFileTypeLabel).c_str(),
                   page.fileTypes.empty()
                       ? ""
                       : page.fileTypes[static_cast<size_t>(page.selectedFileType)].first.c_str()));
  print(formatText("[%c] %s\n", page.wizardOnlyChecked ? 'x' : ' ',
                   consoleLabel(pagetexts::kWizardOnlyCheck).c_str()));
  print(formatText("%s\n%s %s\n", std::string(pagetexts::kBrowserModulonNote).c_str(),
                   consoleLabel(pagetexts::kModulonBoxLabel).c_str(), page.modulonText.c_str()));
}

PageResult ConsoleFrontEnd::showBrowserPage(VariationBrowserPage& page, PageContext& context) {
  page.open(context);
  const std::vector<std::pair<int, std::string>> focusNames = {
      {kControlFileName, consoletexts::kFileNameBox},
      {kControlModulonBox, consoletexts::kModulonBox},
      {kControlFileList, consoletexts::kFileList}};
  for (;;) {
    printBrowserPage(page);
    printFocus(page, focusNames);
    std::string line;
    if (!prompt(std::string(consoletexts::kBrowserCommands), line)) break;
    std::string rest = line;
    const std::string command = splitFirstToken(rest, " \t");
    const std::string argument = trimText(rest);
    if (const size_t number = consoleNumber(command); number > 0) {
      const int index = static_cast<int>(number) - 1;
      if (index < static_cast<int>(page.list.items().size())) {
        if (page.list.items()[static_cast<size_t>(index)].kind == kFolderKind) {
          page.doubleClickItem(context, index, std::nullopt);
        } else {
          page.clickItem(index);
        }
      }
    } else if (command == "f") {
      page.changeFileName(argument);
    } else if (command == "cd") {
      page.changeFileName(argument.empty() || argument.back() == '/' ? argument : argument + "/");
      page.applyTypedText(context, true);
    } else if (command == "u") {
      page.upOneLevel(context);
    } else if (command == "l") {
      const size_t number = consoleNumber(argument);
      if (number == 0) {
        for (size_t i = 0; i < page.lookIn.items().size(); ++i) {
          const LookInItem& item = page.lookIn.items()[i];
          print(formatText("%c%3zu  %s%s\n", static_cast<int>(i) == page.lookIn.selected() ? '*' : ' ', i + 1,
                           std::string(static_cast<size_t>(item.level) * 2, ' ').c_str(),
                           item.displayText.c_str()));
        }
      } else {
        page.chooseLookIn(context, static_cast<int>(number) - 1);
      }
    } else if (command == "t") {
      const size_t number = consoleNumber(argument);
      if (number == 0) {
        for (size_t i = 0; i < page.fileTypes.size(); ++i) {
          print(formatText("%4zu  %s\n", i + 1, page.fileTypes[i].first.c_str()));
        }
      } else {
        page.selectFileType(context, static_cast<int>(number) - 1);
      }
    } else if (command == "w") {
      page.clickWizardOnly(context);
    } else if (command == "m") {
      const size_t number = consoleNumber(argument);
      if (argument.empty()) {
        for (size_t i = 0; i < page.modulonItems.size(); ++i) {
          print(formatText("%4zu  %s\n", i + 1, page.modulonItems[i].c_str()));
        }
      } else if (number > 0 && number <= page.modulonItems.size()) {
        page.modulonText = page.modulonItems[number - 1];
      } else {
        page.modulonText = argument;
      }
    } else if (command == "s") {
      const size_t number = consoleNumber(argument);
      if (number >= 1 && number <= 4) page.list.sortBy(static_cast<int>(number) - 1);
    } else if (command == "r") {
      std::string names = argument;
      const size_t number = consoleNumber(splitFirstToken(names, " \t"));
      const int index = number > 0 ? static_cast<int>(number) - 1 : page.renameTarget();
      page.renameItem(context, index, trimText(names));
    } else if (command == "d") {
      page.showDetailedView(!page.list.detailedView);
    } else if (command == "n" || command.empty()) {
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
