// The numbers of every message the system shows or logs: one enum, one table of texts (base/Messages.cpp).
#pragma once

#include <string_view>

namespace plovix {

// A message number: the index of its text in the table. Every text is a format whose placeholders are all
// "%s", filled by errorMessage (base/Report.h) from its first argument onward.
//
// Numbers 0 to 40 are the fixed table of error and warning texts; their values never change. After them
// come the fixed texts of the questions and notes, then the texts of the CNX error log, then plovix's own
// messages. To add a message:
//   1. append its enumerator at the end of this enum (just before kMessageCount), named after what it says;
//   2. append its text at the same place in the table in base/Messages.cpp (the build checks the order);
//   3. append its line (number, tab, text with "\n" and "\t" written out) to tests/base/data/messages.txt.
// Never insert in the middle: the numbers of the messages after it would change.
enum class Msg : int {
  // The fixed table. 32 and 34 to 36 are warnings (the operation goes on); 0, 28, 29 and 37 are reserved.
  kUnknownError = 0,
  kUnknownFileError = 1,
  kFileNotOpened = 2,
  kInvalidFilePath = 3,
  kSharingViolation = 4,
  kAccessDenied = 5,
  kDiskFull = 6,
  kUnexpectedEndOfFile = 7,
  kHardwareError = 8,
  kSpecifyModulonName = 9,
  kModulonNotListed = 10,
  kNoLaunchCommandLine = 11,
  kIllegalExtension = 12,
  kBlanksInFileName = 13,
  kSpecifyFileToEdit = 14,
  kSpecifyFileToCreate = 15,
  kPathInvalid = 16,
  kUnknownDriveType = 17,
  kCannotEnumerateNetworkDrives = 18,
  kInputPathInvalid = 19,
  kAlreadyExists = 20,
  kDoesNotExist = 21,
  kCannotCreateDirectory = 22,
  kIllegalDirectoryPath = 23,
  kWriteProtected = 24,
  kSelectAvailableModulon = 25,
  kNoFileName = 26,
  kCannotStartPlugin = 27,
  kNoCommandLineInLibraries = 28,
  kUsageSyntax = 29,
  kCnxWithoutModule = 30,
  kCnxUnknownVersion = 31,
  kExtraGenerationTokens = 32,
  kCnxFormatError = 33,
  kNoEndingSeparator = 34,
  kLineWithoutCommandLine = 35,
  kLineWithoutWizardName = 36,
  kSymbolFileNotCreated = 37,
  kIllegalThdlName = 38,
  kIllegalVerilogName = 39,
  kIllegalVhdlName = 40,

  // Questions (OK or Cancel) and notes of the run, the launch, the conflict checks and the pages.
  kNoExtensionQuestion,
  kIllegalExtensionQuestion,
  kCreateFileQuestion,
  kNotWizardGeneratedQuestion,
  kRunVendorScriptQuestion,
  kVendorScriptFailed,
  kCannotExecuteCommand,
  kRenamedVariation,
  kThdlFallbackQuestion,
  kSameNameFileQuestion,
  kSameNameFilesQuestion,
  kOverwriteOutputsQuestion,
  kSymbolUpdateNote,
  kCreateDirectoryQuestion,
  kOverwriteFileQuestion,
  kDriveNotReady,
  kCreateItQuestion,
  kBasedOnOtherModulonQuestion,
  kXmlParsingError,

  // The CNX reader's error-log entries.
  kCnxUnexpectedEnd,
  kCnxNoGenerationMode,
  kCnxUnknownVersionNumber,
  kCnxNoModuleName,
  kCnxUnknownStatement,
  kCnxNoIdentifier,
  kCnxIdentifierStart,
  kCnxNoType,
  kCnxNoValue,
  kCnxNoPortType,
  kCnxExtraTokens,
  kCnxUnknownSymbolElement,
  kCnxNoNumber,
  kCnxNoLineStyle,
  kCnxNoLineWidth,
  kCnxNoStubType,
  kCnxNoOrientation,
  kCnxNoLogical,

  // plovix's own messages. Append new ones at the end.
  kInvalidInformationBlock,
  kInvalidSymbolFile,
  kQtFrontEndUnavailable,
  kMakerNotice,
  kOverwriteDeclined,
  kNotWrittenByHost,
  kQtFrontEndNotInstalled,
  kQtFrontEndNotLoaded,
  kQtFrontEndOtherVersion,
  kNoModulonLibrary,
  kSummaryWritten,
  kSummaryNotWritten,
  kSummaryWarnings,
  kSummaryLine,
  kSummaryNotWrittenLine,

  // Batch hints, command-line usage errors, --check, --describe-modulon and --version.
  kHintUnknownModulon,
  kHintUnknownModulonNoMatch,
  kHintDirectoryMissing,
  kHintDirectoryUnusable,
  kHintEmptyCatalog,
  kHintForce,
  kUsageInvalidEnvironment,
  kUsageJsonNeedsBatch,
  kUsageOneDesignFile,
  kUsageOneSubcommand,
  kUsageNeedsCheck,
  kUsageNoDesignFile,
  kUsageJsonNotHere,
  kCheckSummary,
  kCheckNothingFound,
  kCheckPathUnreadable,
  kCheckBadDescription,
  kCheckNotGenerated,
  kCheckSymbolDrawn,
  kCheckWorkerFailed,
  kDescribeNoSettings,
  kDescribeFailed,
  kDescribeCannotStart,
  kDescribeTimedOut,
  kDescribeExitStatus,
  kDescribeKilled,
  kHintWhileChecking,
  kHintNoModulon,
  kDescribeOutputTooLarge,
  kDescribeNotJson,
  kDescribeBadField,
  kDescribeOtherModulon,
  kJsonUnexpectedCharacter,
  kJsonUnexpectedEnd,
  kJsonBadEscape,
  kJsonControlCharacter,
  kJsonTooDeep,
  kJsonTrailingText,
  kJsonBadNumber,
  kDescribeHeading,
  kDescribeSection,
  kDescribeAliases,
  kDescribeAbstract,
  kDescribeNativeHdl,
  kDescribeSettings,
  kDescribeInteger,
  kDescribeChoice,
  kDescribeText,
  kDescribeDefault,
  kVersionLine,
  kVersionWithRevision,
  // Warnings of the HDL construct checks: the four forms, the places, the constructs, the reasons.
  kHdlWarningValid,
  kHdlWarningOtherLanguage,
  kHdlWarningNothing,
  kHdlWherePort,
  kHdlWherePortOfInstance,
  kHdlWhereInstance,
  kHdlWhereName,
  kHdlEmptyGenericMap,
  kHdlReservedWord,
  kHdlPassedParameter,
  kHdlUpperCaseParameter,
  kHdlSlicedFeeds,
  kHdlConstantSlice,
  kHdlOneBitDrivesBus,
  kHdlNumericDefault,
  kHdlNumberDrivesBit,
  kHdlTwoDimensionalRows,
  kHdlInvertedOutput,
  kHdlOutputRange,
  kHdlMainPortNarrowed,
  kHdlVccDrivesBus,
  kHdlPinReadTwice,
  kHdlReasonWhichBits,
  kHdlWarningNotYet,
  kHdlVerilogKeyword,
  kHdlLowerCasedName,
  kHdlBitOfBusToBit,
  kHdlSliceToWholePort,
  kHdlBitOfOutputToBit,
  kHdlGenericsOfFirstInstance,

  kMessageCount
};

// The size of the fixed table (numbers 0 to 40).
inline constexpr int kFixedMessageCount = 41;
inline constexpr int kMessageCount = static_cast<int>(Msg::kMessageCount);

// The caption of every message box and the manager's name in texts.
inline constexpr std::string_view kManagerName = "Plovix Plug-In Manager";

// The format text of a message; empty for a number outside the table.
std::string_view errorText(Msg id);

}  // namespace plovix
