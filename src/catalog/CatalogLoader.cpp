// Reading the wizard.lst files: directories in path order, files in name order, lines grouped into records.
#include "catalog/CatalogLoader.h"

#include <algorithm>
#include <filesystem>

#include "base/FileSystem.h"
#include "base/Format.h"
#include "base/QuestionTexts.h"
#include "base/Report.h"
#include "base/TextFile.h"
#include "base/TextHelpers.h"
#include "catalog/CatalogInfoBlock.h"
#include "catalog/XmlExceptions.h"

namespace plovix {

namespace {

constexpr const char* kCatalogPattern = "*wizard.lst";

bool isRegularFile(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
}

// The text between `open` and the first `close` after it, or the rest when there is no `close`.
std::string textInBrackets(const std::string& text, size_t open) {
  const size_t close = text.find(']', open);
  return text.substr(open, close == std::string::npos ? std::string::npos : close - open);
}

bool hasNo2DOption(std::string options) {
  while (!options.empty()) {
    if (splitFirstToken(options, ", \t") == "-No2D") return true;
  }
  return false;
}

std::string normaliseCommandLine(const std::string& command) {
  std::string normalised = command;
  for (char& c : normalised) {
    if (c == '#') c = '\n';
    if (c == '\\') c = '/';
  }
  return normalised;
}

// An upper bound of the entries a text can hold.
size_t lineCount(const std::string& text) {
  return static_cast<size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
}

}  // namespace

void CatalogLoader::start() {
  catalog_.entries_.clear();
  catalog_.userDirectories_.clear();
  catalog_.aliases_.clear();
  section_.clear();
}

void CatalogLoader::finish() {
  catalog_.entries_ = index_.takeEntries();
}

void CatalogLoader::load(const std::string& userPath, const std::string& hostPath) {
  start();
  scanPath(userPath, true);
  scanPath(hostPath, false);
  readFiles();
}

void CatalogLoader::loadTexts(std::vector<CatalogFile> files) {
  start();
  files_ = std::move(files);
  readFiles();
}

void CatalogLoader::loadText(const std::string& directory, const std::string& filePath,
                             const std::string& text) {
  loadTexts({{directory, filePath, text}});
}

void CatalogLoader::readFiles() {
  // All files are read first, so that room for every entry is made at once.
  size_t lines = 0;
  for (const CatalogFile& file : files_) lines += lineCount(file.text);
  index_.expect(lines);
  for (const CatalogFile& file : files_) {
    directory_ = file.directory;
    readLines(file.path, file.text);
  }
  files_.clear();
  finish();
}

void CatalogLoader::scanPath(const std::string& path, bool user) {
  size_t start = 0;
  while (start <= path.size()) {
    const size_t end = std::min(path.find(';', start), path.size());
    std::string directory = trimText(path.substr(start, end - start));
    start = end + 1;
    if (directory.empty()) continue;
    // A separator is added unless the piece ends with one ("\\" or, on this platform, "/").
    if (!endsWith(directory, "\\") && !endsWith(directory, "/")) directory += "/";
    if (user) catalog_.userDirectories_.push_back(directory);
    scanDirectory(directory);
  }
}

void CatalogLoader::scanDirectory(const std::string& directory) {
  for (const DirectoryEntry& item : listDirectory(directory, kCatalogPattern)) {
    const std::string filePath = directory + item.name;
    if (item.isDirectory || !isRegularFile(filePath)) continue;
    std::string text;
    int errorNumber = 0;
    if (!readTextFile(filePath, text, errorNumber)) continue;
    files_.push_back(CatalogFile{directory, filePath, std::move(text)});
  }
}

// A line ending in "+" continues on the next one; an information block runs from "<INFO>" to "</INFO>" and
// joins the record before it. A record is processed once the next one starts, or at the end of the file.
void CatalogLoader::readLines(const std::string& filePath, const std::string& text) {
  file_ = filePath;
  std::string accumulator;
  size_t accumulatorLine = 0;
  std::string pending;
  size_t pendingLine = 0;
  bool insideBlock = false;
  size_t lineNumber = 0;
  for (size_t start = 0; start < text.size();) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    const std::string_view rawLine = std::string_view(text).substr(start, end - start);
    start = end + 1;
    ++lineNumber;
    const std::string line = trimText(rawLine);
    if (line.empty() || startsWith(line, "//")) continue;
    if (accumulator.empty()) accumulatorLine = lineNumber;
    if (endsWith(line, "+")) {
      accumulator.append(line, 0, line.size() - 1);
      accumulator += ' ';
      continue;
    }
    accumulator += line;
    if (line == "<INFO>") {
      insideBlock = true;
    } else if (line == "</INFO>") {
      if (pending.empty()) pendingLine = accumulatorLine;
      pending += accumulator;
      accumulator.clear();
      insideBlock = false;
    } else if (!insideBlock) {
      if (!pending.empty()) processRecord(pending, pendingLine);
      pending = std::move(accumulator);
      pendingLine = accumulatorLine;
      accumulator.clear();
    }
  }
  if (!pending.empty()) processRecord(pending, pendingLine);
}

void CatalogLoader::readSectionLine(const std::string& record, size_t line) {
  const size_t start = std::min(record.find_first_not_of('['), record.size());
  if (record.find(']', start) == std::string::npos) {
    reportError(ui_, Msg::kNoEndingSeparator, formatInt(line), file_, "]", "]");
  }
  section_ = textInBrackets(record, start);
}

void CatalogLoader::processRecord(const std::string& untrimmedRecord, size_t line) {
  // Trimmed once: a record that a lone "+" line began starts with a blank, which no later step may keep.
  const std::string record = trimText(untrimmedRecord);
  if (startsWith(record, "[")) {
    readSectionLine(record, line);
    return;
  }

  const size_t keyStart = record.find_first_not_of('=');
  if (keyStart == std::string::npos) {
    reportError(ui_, Msg::kLineWithoutWizardName, formatInt(line), file_);
    return;
  }
  const size_t keyEnd = std::min(record.find('=', keyStart), record.size());
  const std::string key = record.substr(keyStart, keyEnd - keyStart);
  const size_t valueStart = std::min(record.find_first_not_of('=', keyEnd), record.size());
  std::string value = trimLeft(std::string_view(record).substr(valueStart));

  const size_t bracket = key.find('[');
  const std::string name = trimRight(key.substr(0, bracket));
  const std::string options = bracket == std::string::npos ? std::string() : textInBrackets(key, bracket + 1);
  if (name.empty()) return;

  CatalogEntry entry;
  entry.name = name;
  entry.directory = directory_;
  const size_t infoStart = value.find("<INFO>");
  if (infoStart != std::string::npos) {
    const std::string block = value.substr(infoStart);
    value.resize(infoStart);
    try {
      readInformationBlock(block, platform_, entry, catalog_.aliases_);
    } catch (const XML_SAX_EXCEPTION& error) {
      ui_.report(questions::invalidInformationBlock(formatInt(line), file_, error.message()));
    } catch (const XML_EXCEPTION& error) {
      ui_.report(questions::invalidInformationBlock(formatInt(line), file_, error.message()));
    }
  }

  const std::string command = trimLeft(std::string_view(value).substr(0, value.find('=')));
  if (command.empty()) {
    reportError(ui_, Msg::kLineWithoutCommandLine, formatInt(line), file_);
    return;
  }
  entry.commandLine = normaliseCommandLine(command);
  entry.section = section_;
  entry.variantNumber = 1;
  entry.primary = true;
  entry.supports2D = !hasNo2DOption(options);
  index_.insert(std::move(entry));
}

}  // namespace plovix
