// Showing table messages, and mapping the cause of a failed file operation to its message.
#pragma once

#include <string>

#include "base/ErrorTable.h"
#include "base/UserInterface.h"

namespace plovix {

enum class FileErrorCause {
  kGeneric,
  kFileNotFound,
  kBadPath,
  kSharingViolation,
  kAccessDenied,
  kDiskFull,
  kEndOfFile,
  kHardwareError,
};

// The cause of a failed file operation from the platform's errno value.
FileErrorCause fileErrorCauseFromErrno(int errorNumber);

// The table code of a cause (1 to 8).
ErrorCode errorCodeOfCause(FileErrorCause cause);

// The table text of `code` with its "%s" placeholders filled from a1 onward.
std::string errorMessage(ErrorCode code, const std::string& a1 = {}, const std::string& a2 = {},
                         const std::string& a3 = {}, const std::string& a4 = {}, const std::string& a5 = {});

// Shows the table message of `code`.
void reportError(UserInterface& ui, ErrorCode code, const std::string& a1 = {}, const std::string& a2 = {},
                 const std::string& a3 = {}, const std::string& a4 = {}, const std::string& a5 = {});

// Shows the message of a file error cause naming the file.
void reportFileError(UserInterface& ui, FileErrorCause cause, const std::string& path);

// The same with the cause taken from an errno value.
void reportFileErrno(UserInterface& ui, int errorNumber, const std::string& path);

}  // namespace plovix
