// Tests of the message table, the reporter and the file-error mapping.
#include <gtest/gtest.h>

#include <cerrno>

#include "RecordingInterface.h"
#include "base/ErrorTable.h"
#include "base/Report.h"

namespace plovix {
namespace {

TEST(ErrorTable, FillsPlaceholdersInOrderAndIgnoresExtraArguments) {
  EXPECT_EQ(errorMessage(27, "lpm_counter", "No such file or directory"),
            "Can't start the modulon wizard plug-in lpm_counter.\n\nNo such file or directory");
  EXPECT_EQ(
      errorMessage(34, "12", "/lib/wizard.lst", "]", "]"),
      "Line 12 in file /lib/wizard.lst does not contain an ending\nseparator ]. A terminating ] was assumed");
  EXPECT_EQ(errorMessage(10, "x"),
            "Modulon x is not listed in any \nwizard.lst file in the specified library path(s).Wizard launch "
            "aborted");
  EXPECT_EQ(errorMessage(9, "ignored"), "Specify a modulon name");
  EXPECT_EQ(errorMessage(29, "plovix"), "plovix\tsyntax: \n\n plovix [<design file name>]");
  EXPECT_EQ(errorText(41), "");
  EXPECT_EQ(errorText(-1), "");
}

TEST(FileErrors, ErrnoMapsToTheCauseCodes) {
  const std::pair<int, int> cases[] = {{ENOENT, 2}, {ENOTDIR, 3}, {ENAMETOOLONG, 3}, {ETXTBSY, 4},
                                       {EBUSY, 4},  {EACCES, 5},  {EROFS, 5},        {ENOSPC, 6},
                                       {EDQUOT, 6}, {EIO, 8},     {EMFILE, 1},       {0, 1}};
  for (const auto& [error, code] : cases)
    EXPECT_EQ(errorCodeOfCause(fileErrorCauseFromErrno(error)), code) << error;
  EXPECT_EQ(errorCodeOfCause(FileErrorCause::kEndOfFile), 7);
  testing::RecordingInterface ui;
  reportFileErrno(ui, ENOENT, "/x/y.v");
  reportFileErrno(ui, EMFILE, "/x/y.v");
  EXPECT_EQ(ui.boxes, (std::vector<std::string>{"report: File /x/y.v could not be opened",
                                                "report: Unknown file error encountered"}));
}

}  // namespace
}  // namespace plovix
