// plovix --check for one variation: its files generated again in a scratch directory and compared byte for
// byte with the files beside its design file.
#include "Check.h"
#include "base/FileSystem.h"
#include "base/PathText.h"
#include "base/Report.h"
#include "base/TextFile.h"
#include "base/TextHelpers.h"
#include "entry/ManagerApp.h"
#include "entry/RegenerateVariation.h"
#include "plovix_host.h"

namespace plovix {

namespace {

// Generating again shows no box: what it reports is kept for the check's report, and its only possible
// question (two-dimensional ports in VHDL or Verilog HDL) is answered as a batch run would.
class CheckInterface : public UserInterface {
 public:
  void report(const std::string& text) override { boxes.push_back(text); }
  bool ask(const std::string& text) override {
    boxes.push_back(text);
    return true;
  }
  std::vector<std::string> boxes;
};

void emptyDirectory(const std::string& directory) {
  for (const DirectoryEntry& entry : listDirectory(directory)) deleteFile(directory + entry.name);
}

// The verdict on one file: `made` is the generated one in the scratch directory, `path` the user's.
FileVerdict compareFile(const std::string& made, const std::string& path, bool keepExpected) {
  FileVerdict verdict;
  verdict.path = path;
  std::string expected, actual;
  int errorNumber = 0;
  readFileBytes(made, expected, errorNumber);
  if (!readFileBytes(path, actual, errorNumber)) {
    verdict.state = FileVerdict::State::kMissing;
  } else if (actual != expected) {
    verdict.state = FileVerdict::State::kDiffers;
    // A symbol the plug-in drew is not in the retrieval info; only an automatic one can be made again.
    if (endsWith(path, ".sym") && sym_has_automatic_layout(path.c_str()) == 0) {
      verdict.state = FileVerdict::State::kNotCompared;
      verdict.note = errorMessage(Msg::kCheckSymbolDrawn, path);
      return verdict;
    }
  }
  if (keepExpected && verdict.state != FileVerdict::State::kSame) verdict.expected = std::move(expected);
  return verdict;
}

}  // namespace

VariationVerdict checkVariation(const std::string& designFile, const std::string& scratch,
                                bool keepExpected) {
  VariationVerdict verdict;
  verdict.designFile = designFile;
  CheckInterface ui;
  const RegeneratedVariation regenerated =
      regenerateVariation(ManagerApp::instance(), ui, designFile, scratch);
  if (!regenerated.errorLog.empty()) {
    // The log itself was in the scratch directory: its entries go into the problem, not its path.
    ui.boxes.clear();
    verdict.problem = errorMessage(Msg::kCheckBadDescription, designFile, trimRight(regenerated.errorLog));
  } else if (!regenerated.generated) {
    verdict.problem = errorMessage(Msg::kCheckNotGenerated, designFile);
  } else {
    verdict.checked = true;
    const std::string directory = directoryOfPath(designFile);
    for (const std::string& made : regenerated.files)
      verdict.files.push_back(compareFile(made, directory + nameWithExtension(made), keepExpected));
  }
  verdict.boxes = std::move(ui.boxes);
  emptyDirectory(scratch);
  return verdict;
}

}  // namespace plovix
