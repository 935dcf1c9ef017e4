// The retrieval info: the CNX statements embedded as comment lines at the end of a design file, and the
// CNX file rebuilt from a variation file's header and retrieval info in edit mode.
#include "cnx/RetrievalInfo.h"

#include "base/Format.h"
#include "base/Messages.h"
#include "base/OutputKinds.h"
#include "base/PathText.h"
#include "base/Report.h"
#include "base/TextFile.h"
#include "base/TextHelpers.h"
#include "cnx/CnxLineReader.h"

namespace plovix {

namespace {

constexpr std::string_view kRetrievalMarker = "Retrieval info:";

std::string retrievalInfoBanner(std::string_view leader) {
  const std::string text(leader);
  return formatText(
      "%s ============================================================\n%s CNX file retrieval info\n%s "
      "============================================================\n",
      text.c_str(), text.c_str(), text.c_str());
}

std::string retrievalInfoLine(const std::string& leader, std::string_view trimmedLine) {
  return formatText("%s %s %s\n", leader.c_str(), std::string(kRetrievalMarker).c_str(),
                    std::string(trimmedLine).c_str());
}

// The tokens of a variation file's header lines: comment leader, keyword, value, and for module lines an
// instance name.
struct HeaderTokens {
  std::string leader, keyword, value, instance;
  bool extraText = false;  // text after the last token a line of its kind may carry
};

constexpr std::string_view kHeaderDelimiters = "\t ;";

HeaderTokens headerTokens(std::string_view line, bool withInstance) {
  std::string rest(line);
  HeaderTokens tokens;
  tokens.leader = splitFirstToken(rest, kHeaderDelimiters);
  tokens.keyword = splitFirstToken(rest, kHeaderDelimiters);
  tokens.value = splitFirstToken(rest, kHeaderDelimiters);
  if (withInstance) tokens.instance = splitFirstToken(rest, kHeaderDelimiters);
  tokens.extraText = !rest.empty();
  return tokens;
}

// The value of a header line "leader keyword value", or `otherwise` when the line does not read so. Extra
// text after the value is ignored with warning 32.
std::string headerValue(UserInterface& ui, std::string_view line, const std::string& leader,
                        std::string_view keyword, std::string_view otherwise) {
  const HeaderTokens tokens = headerTokens(line, false);
  if (tokens.leader != leader || tokens.keyword != keyword || tokens.value.empty())
    return std::string(otherwise);
  if (tokens.extraText) reportError(ui, Msg::kExtraGenerationTokens);
  return tokens.value;
}

// The CNX line of a module line "leader MODULE: name [instance]", or empty when the line is none.
std::string moduleLine(UserInterface& ui, std::string_view line, const std::string& leader) {
  const HeaderTokens tokens = headerTokens(line, true);
  if (tokens.leader != leader || tokens.keyword != "MODULE:" || tokens.value.empty()) return {};
  if (tokens.extraText) reportError(ui, Msg::kExtraGenerationTokens);
  const std::string operands = tokens.instance.empty() ? tokens.value : tokens.value + " " + tokens.instance;
  return formatText("%s %s\n", "MODULE:", operands.c_str());
}

// The statement that a retrieval-info line carries: the text after the marker and the blank that follows it.
std::string retrievedStatement(std::string_view line, size_t markerAt) {
  const size_t start = std::min(line.size(), markerAt + kRetrievalMarker.size() + 1);
  return std::string(line.substr(start)) + "\n";
}

}  // namespace

std::string retrievalInfoText(const CnxDescription& description, std::string_view commentLeader) {
  const std::string leader(commentLeader);
  std::string text = retrievalInfoBanner(leader);
  TextLineCursor lines(description.retrievedStatements);
  std::string_view line;
  while (lines.next(line)) text += retrievalInfoLine(leader, line);
  return text;
}

RebuiltCnx rebuildCnxText(UserInterface& ui, std::string_view text, const std::string& commentLeader) {
  RebuiltCnx rebuilt;
  TextLineCursor lines(text);
  std::string_view line;
  lines.next(line);  // the signature line
  if (!lines.next(line)) line = {};
  if (headerValue(ui, line, commentLeader, "GENERATION:", "INVALID") != "STANDARD") return rebuilt;

  if (!lines.next(line)) line = {};
  const std::string fileVersion = headerValue(ui, line, commentLeader, "VERSION:", kVersionUnknown);
  if (fileVersion == kVersionUnknown) {
    rebuilt.state = RebuiltCnx::State::kUnknownVersion;
    return rebuilt;
  }
  rebuilt.state = RebuiltCnx::State::kRebuilt;
  rebuilt.text = formatText("%s %s\n", "VERSION:", fileVersion.c_str());
  while (lines.next(line)) {
    const std::string module = moduleLine(ui, line, commentLeader);
    if (!module.empty()) {
      rebuilt.text += module;
      rebuilt.moduleFound = true;
    } else if (const size_t at = line.find(kRetrievalMarker); at != std::string_view::npos) {
      rebuilt.text += retrievedStatement(line, at);
    }
  }
  return rebuilt;
}

bool extractRetrievalInfo(UserInterface& ui, const std::string& variationPath) {
  if (readModulonNameOfFile(variationPath) == kNotWizardMarker) return false;
  std::string text;
  int errorNumber = 0;
  if (!readTextFile(variationPath, text, errorNumber)) {
    reportFileErrno(ui, errorNumber, variationPath);
    return false;
  }
  const std::string commentLeader = commentLeaderOfExtension(splitPath(variationPath, PathPart::kExtension));
  const RebuiltCnx rebuilt = rebuildCnxText(ui, text, commentLeader);
  if (rebuilt.state == RebuiltCnx::State::kNotStandard) return true;
  if (rebuilt.state == RebuiltCnx::State::kUnknownVersion) {
    reportError(ui, Msg::kCnxUnknownVersion, std::string(kManagerName));
    return false;
  }
  const std::string path = pathWithoutExtension(variationPath) + ".cnx";
  if (!writeTextFile(path, rebuilt.text, errorNumber)) {
    reportFileErrno(ui, errorNumber, path);
    return false;
  }
  if (!rebuilt.moduleFound) {
    reportError(ui, Msg::kCnxWithoutModule, std::string(kManagerName));
    return false;
  }
  return true;
}

}  // namespace plovix
