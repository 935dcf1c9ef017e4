// Reading a CNX file into a description: the generation and version lines, then the body statements.
#include "cnx/CnxReader.h"

#include <array>
#include <cerrno>
#include <string_view>
#include <unordered_set>

#include "base/FileSystem.h"
#include "base/Format.h"
#include "base/LargeTable.h"
#include "base/Messages.h"
#include "base/Report.h"
#include "base/TextFile.h"
#include "cnx/CnxLineReader.h"
#include "cnx/CnxStatements.h"
#include "cnx/DescriptionLimits.h"
#include "cnx/ErrorLog.h"

namespace plovix {

namespace {

// The statements whose lines the retrieval info carries back; the header carries the others.
constexpr std::array<std::string_view, 6> kRetrievedStatements = {
    "LIBRARY:", "PARAMETER:", "CONSTANT:", "PRIVATE:", "USED_PORT:", "CONNECT:"};

// The trimmed lines of `text` whose first word (up to a blank or tab) is a retrieved statement; `counts`
// gets the number of lines of the statements that size the reader's tables.
std::string retrievedStatementsOf(std::string_view text, CnxStatementCounts& counts) {
  std::string kept;
  kept.reserve(text.size());
  adviseHugePages(kept.data(), kept.capacity());
  TextLineCursor lines(text);
  CnxLine line;
  while (line.readFrom(lines)) {
    const std::string_view firstWord = line.rest.substr(0, line.rest.find_first_of(" \t"));
    if (firstWord == "MODULE:") ++counts.modules;
    if (firstWord == "SYMBOL:") ++counts.symbols;
    for (std::string_view statement : kRetrievedStatements) {
      if (firstWord != statement) continue;
      if (statement == "USED_PORT:") ++counts.usedPorts;
      if (statement == "CONNECT:") ++counts.connects;
      kept += line.rest;
      kept += '\n';
      break;
    }
  }
  return kept;
}

// The body of a WM1.0 file; a dropped line makes the result false but reading goes on.
bool readBody(CnxOperands& in, CnxLine& line, TextLineCursor& lines, CnxBuild& build) {
  bool result = true;
  while (line.readFrom(lines)) {
    if (line.rest.empty()) continue;
    in.take();
    if (in.token().compare(0, 2, "//") == 0) continue;
    if (!readCnxStatement(in, build)) result = false;
  }
  CnxDescription& d = build.description;
  d.connectionMap = build.connections.finish();
  if (d.modules.empty()) return in.fail(Msg::kCnxNoModuleName);
  std::unordered_set<Name> known;
  for (const CnxModule& module : d.modules) {
    if (known.insert(module.moduleName).second) d.moduleNames.push_back(module.moduleName);
  }
  return result;
}

GenerationMode generationModeOf(std::string_view word) {
  if (word == "STANDARD") return GenerationMode::kStandard;
  if (word == "SYMBOL_ONLY") return GenerationMode::kSymbolOnly;
  return GenerationMode::kInvalid;
}

// The generation line, the version line and the body; false at the first fault of the first two lines.
bool readLines(CnxOperands& in, CnxLine& line, TextLineCursor& lines, CnxDescription& d,
               const CnxStatementCounts& counts) {
  if (!line.readFrom(lines)) return in.fail(Msg::kCnxUnexpectedEnd);
  d.generationMode = generationModeOf(takeGenerationWord(line));
  if (d.generationMode == GenerationMode::kInvalid) return in.fail(Msg::kCnxNoGenerationMode);
  if (!line.readFrom(lines)) return in.fail(Msg::kCnxUnexpectedEnd);
  d.version = takeHeaderValue(line, "VERSION:", {"WM1.0", "WM2.0"}, kVersionUnknown);
  if (d.version == kVersionUnknown) return in.fail(Msg::kCnxUnknownVersionNumber);
  // Only the WM1.0 body has a reader; a WM2.0 file fails without a log entry.
  if (d.version != "WM1.0") return false;
  CnxBuild build{d, CnxConnectionMapBuilder(*d.names)};
  build.reserve(counts);
  return readBody(in, line, lines, build);
}

// The number of the first line longer than the limit, 0 when there is none.
size_t firstOverlongLine(std::string_view text) {
  size_t number = 1;
  for (size_t start = 0; start < text.size(); ++number) {
    size_t end = text.find('\n', start);
    if (end == std::string_view::npos) end = text.size();
    if (end - start > kMaxDescriptionLineBytes) return number;
    start = end + 1;
  }
  return 0;
}

}  // namespace

CnxReader::CnxReader(UserInterface& ui, std::string cnxPath)
    : ui_(ui), errorLogPath_(cnxErrorLogPath(cnxPath)) {
  description_.cnxPath = std::move(cnxPath);
}

const std::string& CnxReader::errorLogPath() const {
  return errorLogPath_;
}

bool CnxReader::read() {
  CnxErrorLog log(ui_, errorLogPath_);
  log.add(1, {}, {});  // the banner
  std::string text;
  int errorNumber = 0;
  if (!readTextFile(description_.cnxPath, text, errorNumber, kMaxDescriptionBytes)) {
    if (errorNumber == EFBIG) {
      reportError(ui_, Msg::kDescriptionTooLarge, description_.cnxPath,
                  formatInt(static_cast<long long>(kMaxDescriptionBytes)));
    } else {
      reportFileErrno(ui_, errorNumber, description_.cnxPath);
    }
    return false;
  }
  return readLimitedText(log, text);
}

bool CnxReader::readText(std::string_view text) {
  CnxErrorLog log(ui_, errorLogPath_);
  log.add(1, {}, {});  // the banner
  if (text.size() > kMaxDescriptionBytes) {
    reportError(ui_, Msg::kDescriptionTooLarge, description_.cnxPath,
                formatInt(static_cast<long long>(kMaxDescriptionBytes)));
    return false;
  }
  return readLimitedText(log, text);
}

bool CnxReader::readLimitedText(CnxErrorLog& log, std::string_view text) {
  if (const size_t number = firstOverlongLine(text)) {
    reportError(ui_, Msg::kDescriptionLineTooLong, formatInt(static_cast<long long>(number)),
                description_.cnxPath, formatInt(static_cast<long long>(kMaxDescriptionLineBytes)));
    return false;
  }
  CnxStatementCounts counts;
  description_.retrievedStatements = retrievedStatementsOf(text, counts);
  CnxLine line;
  CnxOperands in(line, log);
  TextLineCursor lines(text);
  const bool result = readLines(in, line, lines, description_, counts);
  if (!result) reportError(ui_, Msg::kCnxFormatError, errorLogPath_);
  return result;
}

void deleteCnxWorkFiles(const std::string& cnxPath) {
  if (cnxPath.empty()) return;
  if (fileExists(cnxPath)) deleteFile(cnxPath);
  const std::string logPath = cnxErrorLogPath(cnxPath);
  if (fileExists(logPath)) deleteFile(logPath);
}

}  // namespace plovix
