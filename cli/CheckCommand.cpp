// plovix --check: the report of drifted files, the repairs of --update, the summary and the exit status.
#include <cstdio>
#include <cstring>

#include "Check.h"
#include "RunManifest.h"
#include "base/Format.h"
#include "base/Json.h"
#include "base/Report.h"
#include "base/TextFile.h"
#include "entry/ManagerApp.h"

namespace plovix {

namespace {

// What the whole check found and did.
struct CheckTally {
  size_t files = 0;
  JsonValue drift = JsonValue::array();
  JsonValue notCompared = JsonValue::array();
  JsonValue errors = JsonValue::array();
  std::vector<std::string> written;
  JsonValue notWritten = JsonValue::array();
  std::string driftLines;
};

JsonValue pathAndReason(const std::string& path, const std::string& reasonKey, const std::string& reason) {
  JsonValue item = JsonValue::object();
  item.add("path", JsonValue::ofString(path));
  item.add(reasonKey, JsonValue::ofString(reason));
  return item;
}

void note(const std::string& text) {
  std::fprintf(stderr, "plovix: %s\n", text.c_str());
}

void error(BatchFrontEnd& messages, CheckTally& tally, const std::string& text) {
  messages.report(text);
  tally.errors.push(JsonValue::ofString(text));
}

// Rewrites a drifted file with what its variation generates.
void repair(BatchFrontEnd& messages, CheckTally& tally, const FileVerdict& file) {
  int errorNumber = 0;
  if (writeFileBytes(file.path, file.expected, errorNumber)) {
    std::fputs(batchLine("wrote", file.path).c_str(), stderr);
    tally.written.push_back(file.path);
    return;
  }
  const std::string reason = fileErrnoMessage(errorNumber, file.path);
  messages.report(reason);
  tally.notWritten.push(pathAndReason(file.path, "reason", reason));
}

void tallyVariation(BatchFrontEnd& messages, const CheckOptions& options, const VariationVerdict& verdict,
                    CheckTally& tally) {
  for (const std::string& box : verdict.boxes) {
    messages.report(box);
    messages.hint(errorMessage(Msg::kHintWhileChecking, verdict.designFile));
  }
  if (!verdict.checked) error(messages, tally, verdict.problem);
  for (const FileVerdict& file : verdict.files) {
    ++tally.files;
    switch (file.state) {
      case FileVerdict::State::kSame:
        break;
      case FileVerdict::State::kNotCompared:
        note(file.note);
        tally.notCompared.push(pathAndReason(file.path, "reason", file.note));
        break;
      case FileVerdict::State::kDiffers:
      case FileVerdict::State::kMissing: {
        tally.driftLines += batchLine("drift", file.path);
        JsonValue item = pathAndReason(file.path, "variation", verdict.designFile);
        item.add("reason",
                 JsonValue::ofString(file.state == FileVerdict::State::kMissing ? "missing" : "differs"));
        tally.drift.push(std::move(item));
        if (options.update) repair(messages, tally, file);
        break;
      }
    }
  }
}

const char* statusWord(bool failed, size_t drifted, bool update) {
  if (failed) return "failed";
  if (drifted == 0) return "clean";
  return update ? "updated" : "drift";
}

}  // namespace

int runCheck(BatchFrontEnd& messages, const CheckOptions& options) {
  ManagerApp::instance().restoreDirectoryAtExit = false;
  CheckTally tally;
  std::vector<UnreadablePath> unreadable;
  const std::vector<std::string> files = findVariationFiles(options.paths, unreadable);
  for (const UnreadablePath& path : unreadable)
    error(messages, tally,
          errorMessage(Msg::kCheckPathUnreadable, path.path, std::strerror(path.errorNumber)));

  std::vector<VariationVerdict> verdicts;
  std::string failure;
  if (!checkVariations(files, options.jobs, options.update, verdicts, failure))
    error(messages, tally, failure);
  for (const VariationVerdict& verdict : verdicts) tallyVariation(messages, options, verdict, tally);

  if (!options.json) std::fputs(tally.driftLines.c_str(), stdout);
  std::fflush(stdout);
  const size_t drifted = tally.drift.items.size();
  if (files.empty() && unreadable.empty()) {
    std::string paths;
    for (const std::string& path : options.paths.empty() ? std::vector<std::string>{"."} : options.paths)
      paths += (paths.empty() ? "" : ", ") + path;
    note(errorMessage(Msg::kCheckNothingFound, paths));
  } else {
    note(errorMessage(Msg::kCheckSummary, formatInt(static_cast<long long>(files.size())),
                      formatInt(static_cast<long long>(tally.files)),
                      formatInt(static_cast<long long>(drifted)),
                      formatInt(static_cast<long long>(tally.notCompared.items.size()))));
  }

  const bool failed = !tally.errors.items.empty() || !tally.notWritten.items.empty();
  const int status = failed || (drifted > 0 && !options.update) ? 1 : 0;
  if (options.json) {
    JsonValue report = JsonValue::object();
    report.add("status", JsonValue::ofString(statusWord(failed, drifted, options.update)));
    report.add("exit_code", JsonValue::ofInteger(status));
    report.add("variations", JsonValue::ofInteger(static_cast<long long>(files.size())));
    report.add("files", JsonValue::ofInteger(static_cast<long long>(tally.files)));
    report.add("drift", std::move(tally.drift));
    report.add("written", JsonValue::ofStrings(tally.written));
    report.add("not_written", std::move(tally.notWritten));
    report.add("not_compared", std::move(tally.notCompared));
    report.add("errors", std::move(tally.errors));
    if (!printJson(report)) return 1;
  }
  return status;
}

}  // namespace plovix
