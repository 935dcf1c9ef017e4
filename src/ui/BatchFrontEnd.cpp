// Implementation of the batch front end: boxes as lines on standard error, pages filled from the options.
#include "ui/BatchFrontEnd.h"

#include <cstdio>

#include "base/FileSystem.h"
#include "base/OutputKinds.h"
#include "base/PathText.h"
#include "base/Report.h"
#include "ui/BatchHints.h"

namespace plovix {

std::string escapeBoxText(const std::string& text) {
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    if (c == '\\') {
      out += "\\\\";
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\t') {
      out += "\\t";
    } else {
      out += c;
    }
  }
  return out;
}

std::string batchLine(std::string_view kind, const std::string& text) {
  return std::string(kind) + ": " + escapeBoxText(text) + "\n";
}

void BatchFrontEnd::show(std::string_view kind, const std::string& text, const std::string& answer) {
  const std::string line = answer.empty() ? batchLine(kind, text) : batchLine(kind, text + " => " + answer);
  std::fwrite(line.data(), 1, line.size(), stderr);
  std::fflush(stderr);
  boxes_.push_back({std::string(kind), text, answer});
}

void BatchFrontEnd::report(const std::string& text) {
  show("report", text);
}

bool BatchFrontEnd::ask(const std::string& text) {
  show("question", text, options_.answerOk ? "OK" : "Cancel");
  return options_.answerOk;
}

bool BatchFrontEnd::askToReplaceUserFile(const std::string& text, const std::string& path) {
  if (options_.force) return ask(text);
  show("question", text, "Cancel");
  hint(errorMessage(Msg::kHintForce, path));
  return false;
}

void BatchFrontEnd::hint(const std::string& text) {
  show("hint", text);
}

void BatchFrontEnd::showSummary(const RunOutcome& outcome) {
  std::string lines;
  for (const std::string& path : outcome.written) lines += batchLine("wrote", path);
  for (const std::string& warning : outcome.warnings) lines += batchLine("warning", warning);
  std::fwrite(lines.data(), 1, lines.size(), stderr);
  std::fflush(stderr);
}

namespace {

// The file the run names when the page is shown, as a full path; empty when the run names none.
std::string designFileName(const PageContext& context) {
  if (splitPath(context.outputPath, PathPart::kBaseName).empty()) return {};
  return fullPath(context.outputPath);
}

// What is wrong with the directory of the design file, else with the page's own directory (the project's).
std::string directoryHints(const std::string& designFile, const std::string& pageDirectory) {
  std::string hint;
  if (!designFile.empty()) hint = directoryHint(directoryOfPath(designFile));
  if (hint.empty() && !pageDirectory.empty()) hint = directoryHint(pageDirectory);
  return hint;
}

}  // namespace

PageResult BatchFrontEnd::finishWithNext(WizardPageFrame& page, PageContext& context,
                                         const std::string& hint) {
  const size_t boxesBefore = boxes_.size();
  if (page.pressNext(context, std::nullopt)) return page.result;
  page.pressCancel();
  if (!hint.empty() && boxes_.size() > boxesBefore) this->hint(hint);
  return page.result;
}

bool BatchFrontEnd::shownBefore(const WizardPageFrame& page) {
  return !shown_.insert(&page).second;
}

PageResult BatchFrontEnd::showActionPage(ActionPage& page, PageContext& context) {
  page.open();
  if (shownBefore(page)) {
    page.pressCancel();
    return page.result;
  }
  page.createChecked = !options_.modulon.empty();
  return finishWithNext(page, context, {});
}

PageResult BatchFrontEnd::showModulonPage(ModulonSelectionPage& page, PageContext& context) {
  page.open(context);
  if (shownBefore(page)) {
    page.pressCancel();
    return page.result;
  }
  page.editText = designFileName(context);
  std::string hint = errorMessage(Msg::kHintNoModulon);
  if (!options_.modulon.empty()) {
    int item = page.tree.findByText(options_.modulon);
    if (item == ModulonTree::kNoItem)
      item = page.tree.findByText(context.catalog.resolveAlias(options_.modulon));
    page.tree.select(item);
    hint =
        item == ModulonTree::kNoItem ? unknownModulonHint(context.catalog, options_.modulon) : std::string();
  }
  if (const OutputKind* kind = outputKindOfCliWord(options_.language)) page.languageIndex = kind->buttonIndex;
  if (hint.empty()) hint = directoryHints(page.editText, page.directory);
  return finishWithNext(page, context, hint);
}

PageResult BatchFrontEnd::showBrowserPage(VariationBrowserPage& page, PageContext& context) {
  page.open(context);
  if (shownBefore(page)) {
    page.pressCancel();
    return page.result;
  }
  // The box shows the modulon the file's signature names, unless the batch names one.
  page.changeFileName(page.fileNameText);
  if (!options_.modulon.empty()) page.modulonText = options_.modulon;
  std::string hint = directoryHints(designFileName(context), page.directory);
  if (hint.empty() && !page.modulonText.empty() && !catalogListsModulon(context.catalog, page.modulonText) &&
      !WizardCatalog::isNotWizardMarker(page.modulonText))
    hint = unknownModulonHint(context.catalog, page.modulonText);
  return finishWithNext(page, context, hint);
}

}  // namespace plovix
