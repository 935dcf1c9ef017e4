// The one safe writer: replacing a file so that it holds either its old or its complete new contents, and
// removing the temporary files that a killed writer left behind. Plain POSIX, so that the core, the host
// library and the bundled plug-in all write through it (library plovix_safe_write).
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace plovix {

// Every temporary file is named this prefix followed by six characters chosen by mkstemp.
inline constexpr std::string_view kTemporaryPrefix = ".plovix-";

// Replaces the contents of the file `path` with `bytes` (written as they are):
// - a symbolic link is followed to its final target, which is replaced; the link stays a link;
// - the bytes go to a temporary file in the final target's directory, are flushed to the disk (fsync) and
//   the temporary file is renamed over the target, so the target never holds a mixture;
// - an existing file keeps its permission bits (and its group where the system allows); a new file gets
//   0666 less the umask;
// - where no new entry can be made in the directory but the file itself may be written, the file is
//   rewritten in place, with the space reserved first so that a full disk leaves it as it was;
// - a write-protected target (writeProtection) is left alone.
// Returns 0, or the errno value of the failure; on failure the target is unchanged and no temporary file
// is left.
int replaceFile(const std::string& path, std::string_view bytes);

// Appends `bytes` to the file `path` (the final target of a link), creating it when missing. 0 or errno.
int appendToFile(const std::string& path, std::string_view bytes);

// Why an existing `path` may not be replaced, or 0 when it may (also when it does not exist): EACCES for a
// file without any write permission bit (also for root, as a read-only file is meant), the system's refusal
// to open it for writing (EACCES, EPERM for an immutable file, EROFS, ETXTBSY for a running program), EISDIR
// for a directory, EINVAL for anything else that is no regular file.
int writeProtection(const std::string& path);

// Removes the temporary files of this user in `directory` that no running writer holds (each writer locks
// its file) and that were last changed before `since`: what a killed run left behind.
void removeStaleTemporaries(const std::string& directory, std::chrono::system_clock::time_point since);

}  // namespace plovix
