// The questions and notes, built from their texts in the message table.
#include "base/QuestionTexts.h"

#include "base/Format.h"
#include "base/Messages.h"
#include "base/Report.h"

namespace plovix::questions {

namespace {
const std::string kName(kManagerName);
}

std::string noExtension() {
  return errorMessage(Msg::kNoExtensionQuestion);
}

std::string illegalExtension(const std::string& extension) {
  return errorMessage(Msg::kIllegalExtensionQuestion, extension);
}

std::string fileDoesNotExistCreate(const std::string& path) {
  return errorMessage(Msg::kCreateFileQuestion, path);
}

std::string notWizardGenerated(const std::string& path) {
  return errorMessage(Msg::kNotWizardGeneratedQuestion, kName, path);
}

std::string runVendorScript(const std::string& tool) {
  return errorMessage(Msg::kRunVendorScriptQuestion, tool);
}

std::string vendorScriptFailed(const std::string& command, const std::string& tool) {
  return errorMessage(Msg::kVendorScriptFailed, command, tool);
}

std::string cannotExecuteCommand(const std::string& command, const std::string& systemText) {
  return errorMessage(Msg::kCannotExecuteCommand, command, systemText);
}

std::string renamedVariation(const std::string& fileTitle, const std::string& newName) {
  return errorMessage(Msg::kRenamedVariation, fileTitle, kName, newName);
}

std::string thdlFallback() {
  return errorMessage(Msg::kThdlFallbackQuestion);
}

std::string sameNameFiles(int count, const std::string& list) {
  return errorMessage(count == 1 ? Msg::kSameNameFileQuestion : Msg::kSameNameFilesQuestion, list);
}

std::string symbolUpdateNote() {
  return errorMessage(Msg::kSymbolUpdateNote);
}

std::string overwriteExistingOutputs(const std::string& list) {
  return errorMessage(Msg::kOverwriteOutputsQuestion, list);
}

std::string createDirectory(const std::string& directory) {
  return errorMessage(Msg::kCreateDirectoryQuestion, directory);
}

std::string overwriteFile(const std::string& path) {
  return errorMessage(Msg::kOverwriteFileQuestion, path);
}

std::string driveNotReady(const std::string& drive) {
  return errorMessage(Msg::kDriveNotReady, drive);
}

std::string fileDoesNotExistCreateIt(const std::string& path) {
  return errorMessage(Msg::kCreateItQuestion, path);
}

std::string basedOnOtherModulon(const std::string& path, const std::string& fileModulon,
                                const std::string& chosenModulon) {
  return errorMessage(Msg::kBasedOnOtherModulonQuestion, path, fileModulon, chosenModulon);
}

std::string xmlParsingError() {
  return errorMessage(Msg::kXmlParsingError);
}

std::string qtFrontEndUnavailable(bool usingConsole) {
  return errorMessage(Msg::kQtFrontEndUnavailable, usingConsole ? "console" : "batch");
}

std::string runSummary(const RunOutcome& outcome) {
  if (!outcome.generated) return {};
  std::string text;
  if (!outcome.written.empty()) {
    text += errorMessage(Msg::kSummaryWritten, formatInt(static_cast<long long>(outcome.written.size())));
    for (const std::string& path : outcome.written) text += errorMessage(Msg::kSummaryLine, path);
  }
  if (!outcome.notWritten.empty()) {
    text +=
        errorMessage(Msg::kSummaryNotWritten, formatInt(static_cast<long long>(outcome.notWritten.size())));
    for (const RunOutcome::NotWritten& file : outcome.notWritten)
      text += errorMessage(Msg::kSummaryNotWrittenLine, file.path, file.reason);
  }
  if (!outcome.warnings.empty()) {
    text += errorMessage(Msg::kSummaryWarnings, formatInt(static_cast<long long>(outcome.warnings.size())));
    for (const std::string& warning : outcome.warnings) text += errorMessage(Msg::kSummaryLine, warning);
  }
  return text;
}

std::string makerNotice() {
  return errorMessage(Msg::kMakerNotice);
}

std::string invalidInformationBlock(const std::string& line, const std::string& file,
                                    const std::string& message) {
  return errorMessage(Msg::kInvalidInformationBlock, line, file, message);
}

std::string invalidSymbolFile(const std::string& path, int line) {
  return errorMessage(Msg::kInvalidSymbolFile, path, formatInt(line));
}

}  // namespace plovix::questions
