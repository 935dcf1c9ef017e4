// Implementation of message reporting and the file-error mapping.
#include "base/Report.h"

#include <cerrno>

namespace plovix {

FileErrorCause fileErrorCauseFromErrno(int errorNumber) {
  switch (errorNumber) {
    case ENOENT:
      return FileErrorCause::kFileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
    case EINVAL:
    case ELOOP:
      return FileErrorCause::kBadPath;
    case ETXTBSY:
    case EBUSY:
      return FileErrorCause::kSharingViolation;
    case EACCES:
    case EPERM:
    case EROFS:
      return FileErrorCause::kAccessDenied;
    case ENOSPC:
    case EDQUOT:
      return FileErrorCause::kDiskFull;
    case EIO:
      return FileErrorCause::kHardwareError;
    default:
      return FileErrorCause::kGeneric;
  }
}

Msg messageOfCause(FileErrorCause cause) {
  switch (cause) {
    case FileErrorCause::kFileNotFound:
      return Msg::kFileNotOpened;
    case FileErrorCause::kBadPath:
      return Msg::kInvalidFilePath;
    case FileErrorCause::kSharingViolation:
      return Msg::kSharingViolation;
    case FileErrorCause::kAccessDenied:
      return Msg::kAccessDenied;
    case FileErrorCause::kDiskFull:
      return Msg::kDiskFull;
    case FileErrorCause::kEndOfFile:
      return Msg::kUnexpectedEndOfFile;
    case FileErrorCause::kHardwareError:
      return Msg::kHardwareError;
    case FileErrorCause::kGeneric:
      break;
  }
  return Msg::kUnknownFileError;
}

std::string errorMessage(Msg id, const std::string& a1, const std::string& a2, const std::string& a3,
                         const std::string& a4, const std::string& a5) {
  const std::string_view text = errorText(id);
  const std::string* args[] = {&a1, &a2, &a3, &a4, &a5};
  std::string out;
  out.reserve(text.size() + a1.size() + a2.size() + a3.size() + a4.size() + a5.size());
  size_t next = 0;
  size_t copied = 0;
  for (size_t at = text.find("%s"); at != std::string_view::npos; at = text.find("%s", copied)) {
    out.append(text, copied, at - copied);
    if (next < 5) out += *args[next];
    ++next;
    copied = at + 2;
  }
  out.append(text, copied, std::string_view::npos);
  return out;
}

void reportError(UserInterface& ui, Msg id, const std::string& a1, const std::string& a2,
                 const std::string& a3, const std::string& a4, const std::string& a5) {
  ui.report(errorMessage(id, a1, a2, a3, a4, a5));
}

void reportFileError(UserInterface& ui, FileErrorCause cause, const std::string& path) {
  reportError(ui, messageOfCause(cause), path);
}

void reportFileErrno(UserInterface& ui, int errorNumber, const std::string& path) {
  ui.report(fileErrnoMessage(errorNumber, path));
}

std::string fileErrnoMessage(int errorNumber, const std::string& path) {
  return errorMessage(messageOfCause(fileErrorCauseFromErrno(errorNumber)), path);
}

}  // namespace plovix
