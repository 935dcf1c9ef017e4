// Malformed inputs kept from fuzzing and written by hand: every operation on them ends normally and keeps
// its promises about the log, the boxes and the files it writes.
#include <algorithm>
#include <filesystem>

#include "CnxFixture.h"
#include "base/FileSystem.h"
#include "cnx/DescriptionLimits.h"
#include "cnx/RetrievalInfo.h"

namespace plovix::testing {
namespace {

std::vector<std::string> inputFiles() {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(PLOVIX_TEST_DATA_DIR "/fuzz")) {
    files.push_back(entry.path().string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

using MalformedInputTest = CnxFixture;

TEST_F(MalformedInputTest, EveryOperationEndsNormallyOnKeptInputs) {
  const std::vector<std::string> files = inputFiles();
  ASSERT_FALSE(files.empty());
  for (const std::string& file : files) {
    SCOPED_TRACE(file);
    const std::string bytes = TempDir::readFile(file);
    ui.boxes.clear();
    // The read leaves the banner alone when it succeeds and shows error 33 last when it fails.
    const bool ok = read(bytes);
    const std::string logText = log();
    ASSERT_EQ(logText.substr(0, banner().size()), banner());
    if (ok) {
      EXPECT_EQ(logText, banner());
      EXPECT_TRUE(ui.boxes.empty());
    } else {
      ASSERT_FALSE(ui.boxes.empty());
      EXPECT_EQ(ui.boxes.back(), error33());
    }

    // The retrieval info holds its banner and then statement lines only.
    const std::vector<std::string> lines = splitLines(retrievalInfoText(description, "--"));
    ASSERT_GE(lines.size(), 3u);
    for (size_t i = 3; i < lines.size(); ++i) EXPECT_EQ(lines[i].substr(0, 19), "-- Retrieval info: ");

    // Stripping never grows the file beyond its text-mode form.
    EXPECT_TRUE(stripGenerationLine(ui, temp.path("var.cnx")));
    EXPECT_LE(fromTextMode(temp.read("var.cnx")).size(), fromTextMode(bytes).size() + 1);

    // As a variation file, with and without a signature in front.
    for (const std::string& signature : {std::string(), std::string("-- modulon wizard: %m%\n")}) {
      std::filesystem::remove(temp.path("edit.cnx"));
      temp.write("edit.vhd", signature + bytes);
      extractRetrievalInfo(ui, temp.path("edit.vhd"));
      if (fileExists(temp.path("edit.cnx"))) {
        EXPECT_EQ(temp.read("edit.cnx").substr(0, 9), "VERSION: ");
      }
    }
  }
}

TEST_F(MalformedInputTest, StrayQuotesAndMarksAreLoggedAsTheirStatementsFail) {
  EXPECT_FALSE(read(TempDir::readFile(PLOVIX_TEST_DATA_DIR "/fuzz/quotes-and-lone-marks.cnx")));
  EXPECT_EQ(log(), banner() + entry(3, "", Msg::kCnxUnknownStatement) +
                       entry(4, "\"\"", Msg::kCnxUnknownStatement) + entry(5, "", Msg::kCnxUnknownStatement) +
                       entry(6, "", Msg::kCnxUnknownStatement) + entry(7, "", Msg::kCnxUnknownStatement) +
                       entry(8, "MODULE: x", Msg::kCnxUnknownStatement) + entry(15, "", Msg::kCnxNoNumber));
  // "@" alone names the main module's nameless port; "!" alone is a reference with empty parts.
  const CnxConnectionMap& map = description.connectionMap;
  EXPECT_FALSE(map.find("m", "").empty());
  ASSERT_FALSE(map.find("", "-1").empty());
  EXPECT_EQ(map.find("", "-1")[0].peerPort, "a");
  ASSERT_FALSE(map.find("", "-2147483648").empty());
  EXPECT_TRUE(map.find("", "-2147483648")[0].own.rows.low.isZero());
  EXPECT_EQ(description.inputPorts.at(0).name, "");
  // The pin stub's lone quote is its (empty) pin name, so its text position is missing. The PARAMETER element
  // with an empty text is dropped without an entry; the BOX's lone quote is its empty font.
  ASSERT_EQ(description.symbolElements.size(), 1u);
  EXPECT_EQ(std::get<SymbolBox>(description.symbolElements[0].record).font, "");
}

// A description beyond the size limits is refused with its own message before anything is read from it, so
// that no text built from it can overflow (the run then generates nothing and changes no file).
TEST_F(MalformedInputTest, OversizedDescriptionsAreRefused) {
  const std::string path = temp.path("var.cnx");
  EXPECT_FALSE(read(kCnxHead + "MODULE: " + std::string(kMaxDescriptionLineBytes, 'm') + "\n"));
  EXPECT_TRUE(read(kCnxHead + "MODULE: " + std::string(kMaxDescriptionLineBytes - 8, 'm') + "\n"));
  std::filesystem::resize_file(path, kMaxDescriptionBytes + 1);
  EXPECT_FALSE(readFile("var.cnx"));
  EXPECT_EQ(ui.boxes,
            (std::vector<std::string>{
                reported(Msg::kDescriptionLineTooLong, "3", path, std::to_string(kMaxDescriptionLineBytes)),
                reported(Msg::kDescriptionTooLarge, path, std::to_string(kMaxDescriptionBytes))}));
}

}  // namespace
}  // namespace plovix::testing
