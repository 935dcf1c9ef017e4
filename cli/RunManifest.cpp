// Building and printing the JSON manifest of a batch run.
#include "RunManifest.h"

#include <cstdio>

namespace plovix {

namespace {

// The status word of an exit status.
const char* statusWord(int exitStatus) {
  switch (exitStatus) {
    case RunOutcome::kEveryFileWritten:
      return "written";
    case RunOutcome::kSomeFileNotWritten:
      return "incomplete";
    case 2:
      return "usage-error";
    default:
      return "not-generated";
  }
}

JsonValue boxesJson(const std::vector<BatchBox>& boxes) {
  JsonValue list = JsonValue::array();
  for (const BatchBox& box : boxes) {
    JsonValue item = JsonValue::object();
    item.add("kind", JsonValue::ofString(box.kind));
    item.add("text", JsonValue::ofString(box.text));
    if (!box.answer.empty()) item.add("answer", JsonValue::ofString(box.answer));
    list.push(std::move(item));
  }
  return list;
}

}  // namespace

JsonValue runManifest(const std::string& designFile, const RunOutcome& outcome, int exitStatus,
                      const std::vector<BatchBox>& boxes) {
  JsonValue notWritten = JsonValue::array();
  for (const RunOutcome::NotWritten& file : outcome.notWritten) {
    JsonValue item = JsonValue::object();
    item.add("path", JsonValue::ofString(file.path));
    item.add("reason", JsonValue::ofString(file.reason));
    notWritten.push(std::move(item));
  }
  JsonValue manifest = JsonValue::object();
  manifest.add("status", JsonValue::ofString(statusWord(exitStatus)));
  manifest.add("exit_code", JsonValue::ofInteger(exitStatus));
  manifest.add("design_file", JsonValue::ofString(designFile));
  manifest.add("written", JsonValue::ofStrings(outcome.written));
  manifest.add("not_written", std::move(notWritten));
  manifest.add("boxes", boxesJson(boxes));
  manifest.add("warnings", JsonValue::ofStrings(outcome.warnings));
  return manifest;
}

bool printJson(const JsonValue& value) {
  const std::string text = writeJson(value) + "\n";
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  return std::fflush(stdout) == 0 && written;
}

void printUsageErrorManifest(const std::string& message) {
  JsonValue manifest = runManifest({}, RunOutcome{}, 2, {});
  manifest.add("error", JsonValue::ofString(message));
  printJson(manifest);
}

}  // namespace plovix
