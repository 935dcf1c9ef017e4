// The text of every message, in the order of its number (base/Messages.h).
#include "base/Messages.h"

#include <array>

namespace plovix {

namespace {

struct Row {
  Msg id;
  std::string_view text;
};

constexpr Row kTable[] = {
    {Msg::kUnknownError, "Unknown error encountered"},
    {Msg::kUnknownFileError, "Unknown file error encountered"},
    {Msg::kFileNotOpened, "File %s could not be opened"},
    {Msg::kInvalidFilePath, "File path %s is invalid"},
    {Msg::kSharingViolation, "Sharing violation for file %s"},
    {Msg::kAccessDenied, "Access denied to file %s"},
    {Msg::kDiskFull, "Disk is full for writing %s"},
    {Msg::kUnexpectedEndOfFile, "Unexpected end of file reached for %s"},
    {Msg::kHardwareError, "Hardware error encountered for %s"},
    {Msg::kSpecifyModulonName, "Specify a modulon name"},
    {Msg::kModulonNotListed,
     "Modulon %s is not listed in any \nwizard.lst file in the specified library path(s).Wizard launch "
     "aborted"},
    {Msg::kNoLaunchCommandLine, "No launch command line found for modulon wizard plug-in %s"},
    {Msg::kIllegalExtension, "Illegal or missing filename extension.\nUse .tdf, .vhd, or .v only"},
    {Msg::kBlanksInFileName, "File name can not include space or tab characters"},
    {Msg::kSpecifyFileToEdit, "Specify the name of the custom modulon \nvariation file you want to edit"},
    {Msg::kSpecifyFileToCreate, "Specify the name of the custom modulon \nvariation file you want to create"},
    {Msg::kPathInvalid, "Path %s does not exist or is invalid"},
    {Msg::kUnknownDriveType, "Unknown drive type encountered for %s"},
    {Msg::kCannotEnumerateNetworkDrives, "Can't enumerate network drives -- enumeration aborted"},
    {Msg::kInputPathInvalid, "Input path %s is invalid"},
    {Msg::kAlreadyExists, "File or directory %s already exists"},
    {Msg::kDoesNotExist, "File or directory %s does not exist"},
    {Msg::kCannotCreateDirectory, "Can't create directory %s"},
    {Msg::kIllegalDirectoryPath, "Illegal directory path"},
    {Msg::kWriteProtected, "File %s is write-protected"},
    {Msg::kSelectAvailableModulon, "Select an available modulon"},
    {Msg::kNoFileName, "No file name has been specified"},
    {Msg::kCannotStartPlugin, "Can't start the modulon wizard plug-in %s.\n\n%s"},
    {Msg::kNoCommandLineInLibraries,
     "Can't find command line for modulon wizard plug-in %s\nin any wizard.lst file in any library path"},
    {Msg::kUsageSyntax, "%s\tsyntax: \n\n plovix [<design file name>]"},
    {Msg::kCnxWithoutModule, "Can't start %s -- CNX file has no module information"},
    {Msg::kCnxUnknownVersion, "Can't start %s -- CNX file has an unknown version"},
    {Msg::kExtraGenerationTokens, "Extra tokens at the end of the generation mode line will be ignored"},
    {Msg::kCnxFormatError,
     "Error in CNX file format.\n\nError messages are listed in file\n%s.\n\nCan't create the custom modulon "
     "variation file(s)"},
    {Msg::kNoEndingSeparator,
     "Line %s in file %s does not contain an ending\nseparator %s. A terminating %s was assumed"},
    {Msg::kLineWithoutCommandLine,
     "Ignored invalid line %s in file %s -- it does not contain a command line"},
    {Msg::kLineWithoutWizardName, "Ignored invalid line %s in file %s -- it does not contain a wizard_name"},
    {Msg::kSymbolFileNotCreated, "Creation of symbol file %s failed"},
    {Msg::kIllegalThdlName,
     "Illegal character in output file name.\nFile names may only contain underscore,\ntilda, or "
     "alphanumeric characters"},
    {Msg::kIllegalVerilogName,
     "Illegal character in output file name.\nFile names may only contain underscore or\nalphanumeric "
     "characters and begin only with a letter or an underscore"},
    {Msg::kIllegalVhdlName,
     "Illegal character in output file name.\nFile names may only contain underscore or\nalphanumeric "
     "characters and begin only with a letter"},
    {Msg::kNoExtensionQuestion, "File has no filename extension.\nDo you want to edit the file anyway?"},
    {Msg::kIllegalExtensionQuestion,
     "Illegal filename  extension (%s).\n\nDo you want to edit the file anyway?"},
    {Msg::kCreateFileQuestion, "File %s does not exist.\nDo you want to create the file?"},
    {Msg::kNotWizardGeneratedQuestion,
     "%s does not recognize %s as a wizard-generated\ncustom modulon variation.\n\nDo you want to use a "
     "wizard to overwrite it?"},
    {Msg::kRunVendorScriptQuestion,
     "There is a vendor-provided script associated with this plovix plug-in.\nTo run this script will "
     "require %s installed on your system\nand included in your default system path.\n\nDo you want to run "
     "the associated script?"},
    {Msg::kVendorScriptFailed,
     "An error occured when running the associated script\n\n%s\n\nPlease make sure %s is installed on\nyour "
     "system and it is included in your default path.\n\nTo rerun the script, please open the created "
     "variation \nfile in edit mode and press the Finish button"},
    {Msg::kCannotExecuteCommand, "Cannot execute the command line\n\n%s\n\n%s"},
    {Msg::kRenamedVariation,
     "Variation file name (%s) is identical with the name of one of its sub-components.\n\n%s will rename "
     "the variation to \"%s\" to prevent compilation errors"},
    {Msg::kThdlFallbackQuestion,
     "Modulon requires two-dimensional ports which are not currently supported in VHDL or Verilog HDL.\n\nDo "
     "you want to create an THDL version of the modulon instead?"},
    {Msg::kSameNameFileQuestion,
     "The following design file, which has identical name but a different extension \nfrom the specified "
     "variation file, already exists in the working directory:\n\n%s\nThis may create a conflict of design "
     "files and/or lead to undesirable side\neffects.\n\nIs it OK to continue file generation?"},
    {Msg::kSameNameFilesQuestion,
     "The following design files, which have identical names but different extensions \nfrom the specified "
     "variation file, already exist in the working directory:\n\n%s\nThis may create a conflict of design "
     "files and/or lead to undesirable side\neffects.\n\nIs it OK to continue file generation?"},
    {Msg::kOverwriteOutputsQuestion,
     "The following file(s) already exist:\n\n%s\n\nOK to overwrite the file(s)?"},
    {Msg::kSymbolUpdateNote,
     "\nNote: You may need to update the instantiation\nof this function, including its symbol or VHDL "
     "\nComponent Declaration, to reflect the changes. \nChoose 'Update Symbol' (Symbol menu) \nto update a "
     "symbol in the Graphic Editor."},
    {Msg::kCreateDirectoryQuestion, "Directory %s does not exist.\n\nDo you want to create it?"},
    {Msg::kOverwriteFileQuestion, "File %s\nalready exists. OK to overwrite it?"},
    {Msg::kDriveNotReady, "Can't read from drive %s -- It is not ready"},
    {Msg::kCreateItQuestion, "File %s does not exist.\nDo you want to create it?"},
    {Msg::kBasedOnOtherModulonQuestion,
     "File %s is currently based on the\n%s modulon, but you have selected the %s.\n\nOK to continue?"},
    {Msg::kXmlParsingError, "Error in parsing the XML document encountered"},
    {Msg::kCnxUnexpectedEnd, "Unexpected end of file encountered"},
    {Msg::kCnxNoGenerationMode, "No valid wizard signature (generation mode ) found"},
    {Msg::kCnxUnknownVersionNumber, "Unknown version number"},
    {Msg::kCnxNoModuleName, "No module name found in the CNX file"},
    {Msg::kCnxUnknownStatement, "Unknown line identifier encountered"},
    {Msg::kCnxNoIdentifier, "Valid identifier not found."},
    {Msg::kCnxIdentifierStart, "Identifiers cannot begin with a non-alphabetic character."},
    {Msg::kCnxNoType, "Valid variable/constant type not found."},
    {Msg::kCnxNoValue, "Missing value string"},
    {Msg::kCnxNoPortType, "Valid port type (input, output, etc.) not found."},
    {Msg::kCnxExtraTokens, "Extra tokens found at the end of line."},
    {Msg::kCnxUnknownSymbolElement, "Unknown symbol element (line, circle, etc.) identifier encountered."},
    {Msg::kCnxNoNumber, "Valid numeric value not found."},
    {Msg::kCnxNoLineStyle, "Valid line style not found."},
    {Msg::kCnxNoLineWidth, "Valid line width not found."},
    {Msg::kCnxNoStubType, "Valid stub type not found."},
    {Msg::kCnxNoOrientation, "Valid orientation not found."},
    {Msg::kCnxNoLogical, "Valid logical value not found."},
    {Msg::kInvalidInformationBlock, "Ignored invalid information block in line %s in file %s -- %s"},
    {Msg::kInvalidSymbolFile, "File %s is not a valid symbol file (line %s)."},
    {Msg::kQtFrontEndUnavailable, "the Qt front end needs a display; using the %s front end instead"},
    {Msg::kMakerNotice, "plovix is free software; the files it generates are yours to use and share."},
    {Msg::kOverwriteDeclined, "overwrite declined"},
    {Msg::kNotWrittenByHost, "the host library did not write the file"},
    {Msg::kQtFrontEndNotInstalled,
     "the Qt front end is not installed (no %s in %s; it comes with the plovix-qt package); using the %s "
     "front end instead"},
    {Msg::kQtFrontEndNotLoaded, "the Qt front end cannot be loaded: %s; using the %s front end instead"},
    {Msg::kQtFrontEndOtherVersion,
     "the Qt front end %s belongs to another version of plovix; using the %s front end instead"},
    {Msg::kNoModulonLibrary,
     "No modulon library found: the bundled modulons are not in %s.\nName a library with --lib-path or "
     "PLOVIX_LIB_PATH."},
    {Msg::kSummaryWritten, "Files written (%s):\n"},
    {Msg::kSummaryNotWritten, "Files not written (%s):\n"},
    {Msg::kSummaryWarnings, "Warnings (%s):\n"},
    {Msg::kSummaryLine, "  %s\n"},
    {Msg::kSummaryNotWrittenLine, "  %s (%s)\n"},
    {Msg::kHintUnknownModulon,
     "modulon %s is not in the catalog; the closest names are %s (plovix --list-modulons lists them all)"},
    {Msg::kHintUnknownModulonNoMatch,
     "modulon %s is not in the catalog; plovix --list-modulons lists the modulons there are"},
    {Msg::kHintDirectoryMissing, "directory %s does not exist; create it first"},
    {Msg::kHintDirectoryUnusable, "directory %s cannot be used: %s"},
    {Msg::kHintEmptyCatalog,
     "no modulon found in the catalogs (files ending in wizard.lst) of the user library path \"%s\" and the "
     "library path \"%s\""},
    {Msg::kHintForce, "%s is not wizard-generated; a batch run replaces it only with --force"},
    {Msg::kUsageInvalidEnvironment, "%s=%s is not valid; it takes %s"},
    {Msg::kUsageJsonNeedsBatch, "--json needs the batch front end, not --ui %s"},
    {Msg::kUsageOneDesignFile, "only one design file name may be given (%s and %s were)"},
    {Msg::kUsageOneSubcommand, "%s and %s cannot be used together"},
    {Msg::kUsageNeedsCheck, "%s needs --check"},
    {Msg::kUsageNoDesignFile, "%s takes no design file name (%s was given)"},
    {Msg::kUsageJsonNotHere, "--json applies to a run, --check and --describe-modulon, not to %s"},
    {Msg::kCheckSummary, "checked %s variation(s), %s file(s): %s drifted, %s not compared"},
    {Msg::kCheckNothingFound, "no wizard-generated variation file found in %s"},
    {Msg::kCheckPathUnreadable, "cannot check %s: %s"},
    {Msg::kCheckBadDescription, "cannot check %s: the description in its retrieval info is not valid\n%s"},
    {Msg::kCheckNotGenerated, "cannot check %s: its files could not be generated again"},
    {Msg::kCheckSymbolDrawn, "%s was drawn by the plug-in and cannot be rebuilt without it; not compared"},
    {Msg::kCheckWorkerFailed, "a worker of plovix --check ended without its results (%s)"},
    {Msg::kDescribeNoSettings,
     "the plug-in of %s does not describe its settings (its catalog entry has no DESCRIBE element)"},
    {Msg::kDescribeFailed, "the plug-in of %s did not describe its settings: %s"},
    {Msg::kDescribeCannotStart, "it could not be started: %s"},
    {Msg::kDescribeTimedOut, "it did not finish within %s seconds"},
    {Msg::kDescribeExitStatus, "it ended with exit status %s"},
    {Msg::kDescribeKilled, "it was ended by signal %s"},
    {Msg::kHintWhileChecking, "the box above came while checking %s"},
    {Msg::kHintNoModulon,
     "no modulon was named: give one with --modulon NAME (plovix --list-modulons lists them)"},
    {Msg::kDescribeOutputTooLarge, "it printed more than %s bytes"},
    {Msg::kDescribeNotJson, "its output is not JSON (line %s, column %s: %s)"},
    {Msg::kDescribeBadField, "its output has no valid %s"},
    {Msg::kDescribeOtherModulon, "it described the modulon %s instead"},
    {Msg::kJsonUnexpectedCharacter, "unexpected character"},
    {Msg::kJsonUnexpectedEnd, "unexpected end of the text"},
    {Msg::kJsonBadEscape, "invalid escape sequence"},
    {Msg::kJsonControlCharacter, "control character in a string"},
    {Msg::kJsonTooDeep, "values nested too deeply"},
    {Msg::kJsonTrailingText, "text after the value"},
    {Msg::kJsonBadNumber, "invalid number"},
    {Msg::kDescribeHeading, "%s: %s"},
    {Msg::kDescribeSection, "section: %s"},
    {Msg::kDescribeAliases, "aliases: %s"},
    {Msg::kDescribeAbstract, "abstract: %s"},
    {Msg::kDescribeNativeHdl, "native HDL: %s"},
    {Msg::kDescribeSettings, "settings (give them with --plugin-args \"NAME=VALUE ...\"):"},
    {Msg::kDescribeInteger, "integer %s..%s"},
    {Msg::kDescribeChoice, "one of %s"},
    {Msg::kDescribeText, "text"},
    {Msg::kDescribeDefault, "default %s"},
    {Msg::kVersionLine, "plovix %s"},
    {Msg::kVersionWithRevision, "plovix %s (source revision %s)"},
    {Msg::kHdlWarningValid,
     "%s: %s at %s (line %s of the description); --hdl-text valid writes valid HDL of the same meaning"},
    {Msg::kHdlWarningOtherLanguage,
     "%s: %s at %s (line %s of the description); no valid text in this language can express it, also not "
     "with --hdl-text valid: write the variation in %s"},
    {Msg::kHdlWarningNothing,
     "%s: %s at %s (line %s of the description); no valid HDL can express it, also not with --hdl-text "
     "valid: %s"},
    {Msg::kHdlWherePort, "port %s"},
    {Msg::kHdlWherePortOfInstance, "port %s of instance %s"},
    {Msg::kHdlWhereInstance, "instance %s"},
    {Msg::kHdlWhereName, "the name %s"},
    {Msg::kHdlEmptyGenericMap, "an instance without constants of its own gets an empty VHDL generic map"},
    {Msg::kHdlReservedWord, "a VHDL reserved word, or no VHDL identifier, used as a name"},
    {Msg::kHdlPassedParameter,
     "a parameter passed on to the sub-modules is declared with its own name as its VHDL type"},
    {Msg::kHdlUpperCaseParameter,
     "a parameter with capitals passed on to the sub-modules is named in lower case in the Verilog defparam"},
    {Msg::kHdlSlicedFeeds,
     "a sub-module port fed by several slices is assembled from the wrong bits in VHDL"},
    {Msg::kHdlConstantSlice,
     "a constant feeding part of a sub-module port is sized for the whole port in VHDL"},
    {Msg::kHdlOneBitDrivesBus, "one bit drives a bus"},
    {Msg::kHdlNumericDefault, "a numeric default of an input port is an integer literal in VHDL"},
    {Msg::kHdlNumberDrivesBit, "a number driving a single bit is an integer literal in VHDL"},
    {Msg::kHdlTwoDimensionalRows, "the rows of a two-dimensional sub-module port are connected one by one"},
    {Msg::kHdlInvertedOutput, "an inverted sub-module output is never connected to its pin"},
    {Msg::kHdlOutputRange, "a variation output is declared with another range than its port in Verilog"},
    {Msg::kHdlMainPortNarrowed,
     "an output driven by a main-module port declared with \"@\" is narrowed to one bit in Verilog"},
    {Msg::kHdlVccDrivesBus, "VCC driving a bus sets only its lowest bit in Verilog"},
    {Msg::kHdlPinReadTwice, "a sub-module output read in two slices connects the same pin twice"},
    {Msg::kHdlReasonWhichBits, "the description does not say which bits of the bus the bit drives"},
    {Msg::kHdlWarningNotYet,
     "%s: %s at %s (line %s of the description); --hdl-text valid does not cover it yet"},
    {Msg::kHdlVerilogKeyword, "a Verilog keyword, or no Verilog identifier, used as a name"},
    {Msg::kHdlLowerCasedName,
     "a sub-module output port or module name with capitals is lower-cased in Verilog"},
    {Msg::kHdlBitOfBusToBit,
     "one bit of a variation bus feeding a single-bit sub-module input is connected as the whole bus"},
    {Msg::kHdlSliceToWholePort,
     "a slice of a variation port feeding a whole sub-module input is connected as the whole port"},
    {Msg::kHdlBitOfOutputToBit,
     "a sub-module output read in one slice above bit 0 is read from a wire as narrow as the slice"},
    {Msg::kHdlGenericsOfFirstInstance,
     "an instance without a constant that the module's first instance has lacks that VHDL generic"},
    {Msg::kLintFindingAt, "lint: %s: %s:%s: %s"},
    {Msg::kLintFinding, "lint: %s: %s: %s"},
    {Msg::kLintNoTools, "none of the HDL tools %s is on PATH; %s was not checked"},
    {Msg::kLintNotHdl, "%s is not a VHDL or Verilog HDL file (.vhd or .v); not checked"},
    {Msg::kLintCannotRead, "cannot read %s: %s"},
    {Msg::kLintNoScratch, "cannot make a scratch directory to check %s: %s"},
    {Msg::kLintToolExit, "rejected the file (exit status %s)"},
    {Msg::kLintToolKilled, "was ended by signal %s"},
    {Msg::kLintToolTimedOut, "did not finish within %s seconds"},
    {Msg::kLintToolTooMuchOutput, "printed more than %s bytes"},
    {Msg::kLintToolCannotStart, "could not be started: %s"},
    {Msg::kLintSummary, "linted %s file(s): %s not accepted, %s finding(s)"},
    {Msg::kUsageLintNeedsFile, "--lint needs the variation files to check"},
    {Msg::kDescriptionTooLarge,
     "File %s is too large for a CNX description: it holds more than %s bytes.\nNothing was generated and no "
     "file was changed."},
    {Msg::kDescriptionLineTooLong,
     "Line %s of file %s is longer than %s bytes, the longest line a CNX description may hold.\nNothing was "
     "generated and no file was changed."},
    {Msg::kDescriptionKept, "The design file %s was not written; the wizard's settings are kept in %s."},
    {Msg::kPluginEndedBySignal, "The modulon wizard plug-in %s was ended by signal %s (%s)."},
    {Msg::kPositionChannelTaken,
     "The position channel %s is taken by another program; the plug-in's window position is not followed in "
     "this run."},
    {Msg::kHdlConstantAboveZero,
     "a constant driving an output slice above bit 0 is read at the slice's bits from a signal that holds "
     "only its own bits in VHDL"},
    {Msg::kHdlInvertedSlice, "an inverted slice of a variation port inverts the whole port"},
};

// Every message has its row, at the index of its number.
constexpr bool rowsInOrder() {
  if (std::size(kTable) != static_cast<size_t>(kMessageCount)) return false;
  for (size_t i = 0; i < std::size(kTable); ++i)
    if (static_cast<size_t>(kTable[i].id) != i) return false;
  return true;
}
static_assert(rowsInOrder(), "the rows of kTable must follow the order of Msg");

}  // namespace

std::string_view errorText(Msg id) {
  const int index = static_cast<int>(id);
  if (index < 0 || index >= kMessageCount) return {};
  return kTable[index].text;
}

}  // namespace plovix
