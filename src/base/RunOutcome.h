// What one run did with the variation's files: written, not written and why, the warnings to show after
// generation, and the exit status that follows from them.
#pragma once

#include <string>
#include <vector>

namespace plovix {

struct RunOutcome {
  // A file of the variation that was not written, with the reason as the user reads it.
  struct NotWritten {
    std::string path;
    std::string reason;
    bool operator==(const NotWritten&) const = default;
  };

  // Exit statuses of the plovix command (2, a usage error, is decided before any run).
  static constexpr int kEveryFileWritten = 0;
  static constexpr int kNotGenerated = 1;
  static constexpr int kSomeFileNotWritten = 3;

  bool generated = false;              // a description was read and its files were being written
  std::vector<std::string> written;    // every file written, in order, with its path as it was written
  std::vector<NotWritten> notWritten;  // in order: declined overwrites, failed writes, skipped files
  std::vector<std::string> warnings;   // to show after generation

  // kEveryFileWritten, kSomeFileNotWritten when generated with a file not written, else kNotGenerated.
  int exitStatus() const {
    if (!generated) return kNotGenerated;
    return notWritten.empty() ? kEveryFileWritten : kSomeFileNotWritten;
  }

  // Records the result of writing `path`.
  void recordWrite(const std::string& path, bool ok, const std::string& reasonIfNot) {
    if (ok) {
      written.push_back(path);
    } else {
      notWritten.push_back({path, reasonIfNot});
    }
  }
};

}  // namespace plovix
