// Showing table messages, and mapping the cause of a failed file operation to its message.
#pragma once

#include <string>

#include "base/Messages.h"
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

// The message of a cause (numbers 1 to 8).
Msg messageOfCause(FileErrorCause cause);

// The text of message `id` with its "%s" placeholders filled from a1 onward; arguments beyond the text's
// placeholders are ignored, and an argument's own "%s" stays as it is.
std::string errorMessage(Msg id, const std::string& a1 = {}, const std::string& a2 = {},
                         const std::string& a3 = {}, const std::string& a4 = {}, const std::string& a5 = {});

// Shows message `id` as a report.
void reportError(UserInterface& ui, Msg id, const std::string& a1 = {}, const std::string& a2 = {},
                 const std::string& a3 = {}, const std::string& a4 = {}, const std::string& a5 = {});

// Shows the message of a file error cause naming the file.
void reportFileError(UserInterface& ui, FileErrorCause cause, const std::string& path);

// The same with the cause taken from an errno value.
void reportFileErrno(UserInterface& ui, int errorNumber, const std::string& path);

// The text reportFileErrno shows.
std::string fileErrnoMessage(int errorNumber, const std::string& path);

}  // namespace plovix
