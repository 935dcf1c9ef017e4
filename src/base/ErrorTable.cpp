// The message table itself, text for text.
#include "base/ErrorTable.h"

#include <array>

namespace plovix {

namespace {

constexpr std::array<std::string_view, kErrorTableSize> kTexts = {
    /* 0 */ "Unknown error encountered",
    /* 1 */ "Unknown file error encountered",
    /* 2 */ "File %s could not be opened",
    /* 3 */ "File path %s is invalid",
    /* 4 */ "Sharing violation for file %s",
    /* 5 */ "Access denied to file %s",
    /* 6 */ "Disk is full for writing %s",
    /* 7 */ "Unexpected end of file reached for %s",
    /* 8 */ "Hardware error encountered for %s",
    /* 9 */ "Specify a modulon name",
    /* 10 */
    "Modulon %s is not listed in any \nwizard.lst file in the specified library path(s).Wizard launch "
    "aborted",
    /* 11 */ "No launch command line found for modulon wizard plug-in %s",
    /* 12 */ "Illegal or missing filename extension.\nUse .tdf, .vhd, or .v only",
    /* 13 */ "File name can not include space or tab characters",
    /* 14 */ "Specify the name of the custom modulon \nvariation file you want to edit",
    /* 15 */ "Specify the name of the custom modulon \nvariation file you want to create",
    /* 16 */ "Path %s does not exist or is invalid",
    /* 17 */ "Unknown drive type encountered for %s",
    /* 18 */ "Can't enumerate network drives -- enumeration aborted",
    /* 19 */ "Input path %s is invalid",
    /* 20 */ "File or directory %s already exists",
    /* 21 */ "File or directory %s does not exist",
    /* 22 */ "Can't create directory %s",
    /* 23 */ "Illegal directory path",
    /* 24 */ "File %s is write-protected",
    /* 25 */ "Select an available modulon",
    /* 26 */ "No file name has been specified",
    /* 27 */ "Can't start the modulon wizard plug-in %s.\n\n%s",
    /* 28 */
    "Can't find command line for modulon wizard plug-in %s\nin any wizard.lst file in any library path",
    /* 29 */ "%s\tsyntax: \n\n plovix [<design file name>]",
    /* 30 */ "Can't start %s -- CNX file has no module information",
    /* 31 */ "Can't start %s -- CNX file has an unknown version",
    /* 32 */ "Extra tokens at the end of the generation mode line will be ignored",
    /* 33 */
    "Error in CNX file format.\n\nError messages are listed in file\n%s.\n\nCan't create the custom modulon "
    "variation "
    "file(s)",
    /* 34 */ "Line %s in file %s does not contain an ending\nseparator %s. A terminating %s was assumed",
    /* 35 */ "Ignored invalid line %s in file %s -- it does not contain a command line",
    /* 36 */ "Ignored invalid line %s in file %s -- it does not contain a wizard_name",
    /* 37 */ "Creation of symbol file %s failed",
    /* 38 */
    "Illegal character in output file name.\nFile names may only contain underscore,\ntilda, or alphanumeric "
    "characters",
    /* 39 */
    "Illegal character in output file name.\nFile names may only contain underscore or\nalphanumeric "
    "characters "
    "and begin only with a letter or an underscore",
    /* 40 */
    "Illegal character in output file name.\nFile names may only contain underscore or\nalphanumeric "
    "characters "
    "and begin only with a letter",
};

}  // namespace

std::string_view errorText(ErrorCode code) {
  if (code < 0 || code >= kErrorTableSize) return {};
  return kTexts[static_cast<size_t>(code)];
}

}  // namespace plovix
