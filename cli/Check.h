// plovix --check: finding the variations under the given paths, comparing each variation's files with what
// its design file generates, and the report.
#pragma once

#include <string>
#include <vector>

#include "ui/BatchFrontEnd.h"

namespace plovix {

struct CheckOptions {
  std::vector<std::string> paths;  // files and directories; "." when none
  bool update = false;
  int jobs = 1;
  bool json = false;
};

// One file of a variation as the check found it.
struct FileVerdict {
  enum class State { kSame, kDiffers, kMissing, kNotCompared };
  std::string path;  // beside the design file
  State state = State::kSame;
  std::string note;      // kNotCompared: why
  std::string expected;  // kDiffers and kMissing, when updating: the bytes the file should hold
};

// One variation: whether it could be checked, the boxes shown while generating it again, its files.
struct VariationVerdict {
  std::string designFile;
  bool checked = false;
  std::string problem;             // why it could not be checked
  std::vector<std::string> boxes;  // what the generation reported or asked
  std::vector<FileVerdict> files;
};

// A path given to --check that could not be read, with the errno value.
struct UnreadablePath {
  std::string path;
  int errorNumber = 0;
};

// The wizard-generated design files (a .tdf, .vhd or .v file whose first line carries the signature) among
// the given files and in the given directories and their subdirectories, sorted by path, each once. Hidden
// directories and symbolic links met on the way are skipped; the native-language copy "NAME_enc.EXT" of a
// variation found beside it is not a variation of its own.
std::vector<std::string> findVariationFiles(const std::vector<std::string>& paths,
                                            std::vector<UnreadablePath>& unreadable);

// Generates the variation of `designFile` again in `scratch` (an empty directory of the caller's, with its
// trailing "/", left empty again) and compares every file with the one beside the design file.
VariationVerdict checkVariation(const std::string& designFile, const std::string& scratch, bool keepExpected);

// Checks every file with `jobs` worker processes (in this process when 1); the verdicts come in the order
// of `files` whatever `jobs` is. False, with the reason, when a worker failed.
bool checkVariations(const std::vector<std::string>& files, int jobs, bool keepExpected,
                     std::vector<VariationVerdict>& verdicts, std::string& failure);

// The whole sub-command: its output and its exit status.
int runCheck(BatchFrontEnd& messages, const CheckOptions& options);

// The JSON form of a verdict and back, for worker processes.
std::string verdictToLine(const VariationVerdict& verdict);
bool verdictFromLine(const std::string& line, VariationVerdict& verdict);

}  // namespace plovix
