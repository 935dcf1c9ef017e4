// Implementation of the batch front end: boxes as lines on standard error, pages filled from the options.
#include "ui/BatchFrontEnd.h"

#include "base/OutputKinds.h"

#include <cstdio>

#include "base/FileSystem.h"
#include "base/PathText.h"

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

void BatchFrontEnd::report(const std::string& text) {
  std::fprintf(stderr, "report: %s\n", escapeBoxText(text).c_str());
  std::fflush(stderr);
}

bool BatchFrontEnd::ask(const std::string& text) {
  std::fprintf(stderr, "question: %s => %s\n", escapeBoxText(text).c_str(),
               options_.answerOk ? "OK" : "Cancel");
  std::fflush(stderr);
  return options_.answerOk;
}

namespace {

// A page that is still open after Next (a check failed and was reported) ends with Cancel, so that a batch
// run never waits for input.
PageResult finishWithNext(WizardPageFrame& page, PageContext& context) {
  if (!page.pressNext(context, std::nullopt)) page.pressCancel();
  return page.result;
}

// The file the run names when the page is shown, as a full path; empty when the run names none.
std::string designFileName(const PageContext& context) {
  if (splitPath(context.outputPath, PathPart::kBaseName).empty()) return {};
  return fullPath(context.outputPath);
}

}  // namespace

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
  return finishWithNext(page, context);
}

PageResult BatchFrontEnd::showModulonPage(ModulonSelectionPage& page, PageContext& context) {
  page.open(context);
  if (shownBefore(page)) {
    page.pressCancel();
    return page.result;
  }
  page.editText = designFileName(context);
  if (!options_.modulon.empty()) {
    int item = page.tree.findByText(options_.modulon);
    if (item == ModulonTree::kNoItem)
      item = page.tree.findByText(context.catalog.resolveAlias(options_.modulon));
    page.tree.select(item);
  }
  if (const OutputKind* kind = outputKindOfCliWord(options_.language)) page.languageIndex = kind->buttonIndex;
  return finishWithNext(page, context);
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
  return finishWithNext(page, context);
}

}  // namespace plovix
