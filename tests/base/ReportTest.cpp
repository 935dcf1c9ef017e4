// Tests of the message table, the reporter and the file-error mapping.
#include <gtest/gtest.h>

#include <cerrno>

#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/Messages.h"
#include "base/Report.h"

namespace plovix {
namespace {

// One line per message: its number, a tab and its text with "\\", line feed and tab written out.
std::string tableListing() {
  std::string listing;
  for (int number = 0; number < kMessageCount; ++number) {
    listing += std::to_string(number) + "\t";
    for (char c : errorText(static_cast<Msg>(number))) {
      if (c == '\\') {
        listing += "\\\\";
      } else if (c == '\n') {
        listing += "\\n";
      } else if (c == '\t') {
        listing += "\\t";
      } else {
        listing += c;
      }
    }
    listing += "\n";
  }
  return listing;
}

// The one place that pins the texts: every message, the fixed table's numbers 0 to 40 first.
TEST(MessageTable, EveryTextAsTheGoldenFileHasIt) {
  EXPECT_EQ(tableListing(), testing::TempDir::readFile(PLOVIX_TEST_DATA_DIR "/messages.txt"));
  EXPECT_EQ(static_cast<int>(Msg::kIllegalVhdlName), kFixedMessageCount - 1);
  EXPECT_EQ(errorText(Msg::kMessageCount), "");
  EXPECT_EQ(errorText(static_cast<Msg>(-1)), "");
}

TEST(MessageTable, FillsPlaceholdersInOrderAndIgnoresExtraArguments) {
  EXPECT_EQ(errorMessage(Msg::kCannotStartPlugin, "lpm_counter", "No such file or directory"),
            "Can't start the modulon wizard plug-in lpm_counter.\n\nNo such file or directory");
  EXPECT_EQ(errorMessage(Msg::kNoEndingSeparator, "12", "%s", "]", "]"),
            "Line 12 in file %s does not contain an ending\nseparator ]. A terminating ] was assumed");
  EXPECT_EQ(errorMessage(Msg::kSpecifyModulonName, "ignored"), "Specify a modulon name");
  EXPECT_EQ(errorMessage(Msg::kUsageSyntax, "plovix"), "plovix\tsyntax: \n\n plovix [<design file name>]");
}

TEST(FileErrors, ErrnoMapsToTheCauseMessages) {
  const std::pair<int, Msg> cases[] = {{ENOENT, Msg::kFileNotOpened},
                                       {ENOTDIR, Msg::kInvalidFilePath},
                                       {ENAMETOOLONG, Msg::kInvalidFilePath},
                                       {ETXTBSY, Msg::kSharingViolation},
                                       {EBUSY, Msg::kSharingViolation},
                                       {EACCES, Msg::kAccessDenied},
                                       {EROFS, Msg::kAccessDenied},
                                       {ENOSPC, Msg::kDiskFull},
                                       {EDQUOT, Msg::kDiskFull},
                                       {EIO, Msg::kHardwareError},
                                       {EMFILE, Msg::kUnknownFileError},
                                       {0, Msg::kUnknownFileError}};
  for (const auto& [error, message] : cases)
    EXPECT_EQ(messageOfCause(fileErrorCauseFromErrno(error)), message) << error;
  EXPECT_EQ(messageOfCause(FileErrorCause::kEndOfFile), Msg::kUnexpectedEndOfFile);
  testing::RecordingInterface ui;
  reportFileErrno(ui, ENOENT, "/x/y.v");
  EXPECT_EQ(ui.boxes, (std::vector<std::string>{testing::reported(Msg::kFileNotOpened, "/x/y.v")}));
}

}  // namespace
}  // namespace plovix
