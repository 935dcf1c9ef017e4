// The .cnxerr log: faults in every statement kind (golden files), in the first two lines and at the end of
// the file, and what happens around the log file itself.
#include <algorithm>
#include <filesystem>

#include "CnxFixture.h"
#include "Golden.h"
#include "base/Format.h"

namespace plovix::testing {
namespace {

using ErrorLogTest = CnxFixture;

namespace fs = std::filesystem;

const std::string kErrorSamples = PLOVIX_TEST_DATA_DIR "/errors/";

std::vector<std::string> errorSamples() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kErrorSamples)) {
    if (entry.path().extension() == ".cnx") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

class ErrorLogSample : public CnxFixture, public ::testing::WithParamInterface<std::string> {};

// Faulty lines of every kind, in the first two lines (head_*) and at the end of the file (data/errors/*.cnx;
// a WM2.0 body has no reader, so its log has the banner alone): the log (golden *.cnxerr, with its entries in
// file order), one box, and records left by the accepted lines only (the counts after the log, golden too).
TEST_P(ErrorLogSample, LogsEveryFaultAndDropsItsLine) {
  EXPECT_FALSE(read(TempDir::readFile(kErrorSamples + GetParam() + ".cnx")));
  EXPECT_EQ(ui.boxes, std::vector<std::string>{error33()});
  const CnxDescription& d = description;
  const std::string records = formatText(
      "-- records: %d modules, %d libraries, %d parameters, %d constants, %d privates, %d ports, "
      "%d connection ends, %d symbol elements, %s symbol\n",
      int(d.modules.size()), int(d.libraries.size()), int(d.parameters.size()), int(d.constants.size()),
      int(d.privates.size()), int(d.inputPorts.size() + d.outputPorts.size() + d.mainModulePorts.size()),
      int(d.connectionMap.endCount()), int(d.symbolElements.size()),
      d.defaultSymbolBox ? "automatic" : "drawn");
  expectGolden(log() + records, kErrorSamples + GetParam() + ".cnxerr");
}

INSTANTIATE_TEST_SUITE_P(Samples, ErrorLogSample, ::testing::ValuesIn(errorSamples()),
                         [](const auto& info) { return info.param; });

TEST_F(ErrorLogTest, ValidFileLeavesTheBannerAloneInTextMode) {
  temp.write("var.cnxerr", "an older log that must go\n");
  EXPECT_TRUE(read("GENERATION: SYMBOL_ONLY trailing words\nVERSION: WM1.0 more\r\nMODULE: m\r\n"));
  EXPECT_EQ(temp.read("var.cnxerr"),
            "*******************************************\r\n"
            "**       CNX File Error Log              **\r\n"
            "*******************************************\r\n\r\n");
  EXPECT_TRUE(ui.boxes.empty());
  EXPECT_EQ(description.generationMode, GenerationMode::kSymbolOnly);
  EXPECT_EQ(description.version, "WM1.0");
}

TEST_F(ErrorLogTest, MissingCnxFileIsAFileErrorAfterTheLogWasCreated) {
  EXPECT_FALSE(readFile("none.cnx"));
  EXPECT_EQ(ui.boxes, std::vector<std::string>{reported(Msg::kFileNotOpened, temp.path("none.cnx"))});
  EXPECT_EQ(fromTextMode(temp.read("none.cnxerr")), banner());

  // Without any path neither file can be opened.
  RecordingInterface pathless;
  EXPECT_FALSE(CnxReader(pathless, "").read());
  EXPECT_EQ(pathless.boxes, std::vector<std::string>(2, reported(Msg::kFileNotOpened, "")));
}

TEST_F(ErrorLogTest, LogThatCannotBeCreatedIsReportedAtEveryFaultAndNoEntryIsWritten) {
  temp.write("dir/var.cnx", kCnxHead + "FOO:\nMODULE: m\n");
  // A directory where the log should be: it can neither be created nor appended to.
  temp.write("dir/var.cnxerr/keep", "");
  EXPECT_FALSE(readFile("dir/var.cnx"));
  // The log stays to be created, so the fault of line 3 tries again and its entry is lost; reading goes on.
  const std::vector<std::string> expected = {reported(Msg::kUnknownFileError),
                                             reported(Msg::kUnknownFileError),
                                             reported(Msg::kCnxFormatError, temp.path("dir/var.cnxerr"))};
  EXPECT_EQ(ui.boxes, expected);
  EXPECT_EQ(description.modules.size(), 1u);
}

}  // namespace
}  // namespace plovix::testing
