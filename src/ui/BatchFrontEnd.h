// The batch front end: boxes become one line each on standard error, pages are filled from the options.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/RunOutcome.h"
#include "ui/FrontEnd.h"
#include "ui/FrontEndFactory.h"

namespace plovix {

// The text of a box on one line: "\" as "\\", line feed as "\n", tab as "\t".
std::string escapeBoxText(const std::string& text);

// One line of batch output: the kind ("report", "question", "hint", "wrote", "warning", "drift"), a colon,
// a blank and the text on one line, then a line feed.
std::string batchLine(std::string_view kind, const std::string& text);

// What a batch run showed, in order, for its manifest.
struct BatchBox {
  std::string kind;    // "report", "question" or "hint"
  std::string text;    // as the box shows it (not escaped)
  std::string answer;  // a question's: "OK" or "Cancel"
};

class BatchFrontEnd : public FrontEnd {
 public:
  explicit BatchFrontEnd(FrontEndOptions options) : options_(std::move(options)) {}

  void report(const std::string& text) override;
  bool ask(const std::string& text) override;
  // Cancel unless --force was given (then as ask), followed by a hint that names --force.
  bool askToReplaceUserFile(const std::string& text, const std::string& path) override;

  PageResult showActionPage(ActionPage& page, PageContext& context) override;
  PageResult showModulonPage(ModulonSelectionPage& page, PageContext& context) override;
  PageResult showBrowserPage(VariationBrowserPage& page, PageContext& context) override;

  // A hint line: what the box before it leaves the user guessing.
  void hint(const std::string& text);
  // The lines that end a run: "wrote: PATH" for every file written, "warning: TEXT" for every warning.
  void showSummary(const RunOutcome& outcome) override;

  const std::vector<BatchBox>& boxes() const { return boxes_; }

 private:
  // A page shown again (the plug-in went back, or could not be started) would be filled the same way and
  // lead to the same place; it ends with Cancel instead, so that a batch run never loops.
  bool shownBefore(const WizardPageFrame& page);
  // Presses Next; a page still open afterwards (a check failed and was reported) ends with Cancel, and when
  // its checks showed a box, `hint` (when not empty) follows it.
  PageResult finishWithNext(WizardPageFrame& page, PageContext& context, const std::string& hint);
  void show(std::string_view kind, const std::string& text, const std::string& answer = {});

  FrontEndOptions options_;
  std::set<const WizardPageFrame*> shown_;
  std::vector<BatchBox> boxes_;
};

}  // namespace plovix
