// Generating a variation's files again from the retrieval info of its design file.
#include "entry/RegenerateVariation.h"

#include "base/FileSystem.h"
#include "base/Format.h"
#include "base/OutputKinds.h"
#include "base/PathText.h"
#include "base/TextFile.h"
#include "cnx/CnxReader.h"
#include "cnx/RetrievalInfo.h"
#include "entry/GenerateVariation.h"

namespace plovix {

namespace {

// The error log without its banner: the entries, each naming its line and fault.
std::string errorLogEntries(const std::string& logPath) {
  std::string log;
  int errorNumber = 0;
  if (!readTextFile(logPath, log, errorNumber)) return {};
  const size_t entries = log.find("\n\n");
  return entries == std::string::npos ? std::string() : log.substr(entries + 2);
}

// The CNX file rebuilt from the design file, with the generation line a plug-in would write before it.
bool prepareDescription(UserInterface& ui, const std::string& scratchDesign, std::string& cnxPath) {
  if (!extractRetrievalInfo(ui, scratchDesign)) return false;
  cnxPath = pathWithoutExtension(scratchDesign) + ".cnx";
  std::string body;
  int errorNumber = 0;
  // Written anew rather than replaced: replacing a file just written makes some file systems flush it.
  return readTextFile(cnxPath, body, errorNumber) && deleteFile(cnxPath) &&
         writeTextFile(cnxPath, formatText("%s %s\n", "GENERATION:", "STANDARD") + body, errorNumber);
}

}  // namespace

RegeneratedVariation regenerateVariation(ManagerApp& app, UserInterface& ui, const std::string& designFile,
                                         const std::string& directory) {
  RegeneratedVariation result;
  // The design file is read in the directory, so that the rebuilt CNX file lands there too.
  const std::string scratchDesign = directory + nameWithExtension(designFile);
  std::string bytes;
  int errorNumber = 0;
  if (!readFileBytes(designFile, bytes, errorNumber) || !writeFileBytes(scratchDesign, bytes, errorNumber))
    return result;

  std::string cnxPath;
  if (!prepareDescription(ui, scratchDesign, cnxPath)) return result;
  CnxReader reader(ui, cnxPath);
  if (!reader.read()) {
    result.errorLog = errorLogEntries(reader.errorLogPath());
    deleteCnxWorkFiles(cnxPath);
    return result;
  }

  // The copy has served; the design file is written anew, not over it (see prepareDescription).
  deleteFile(scratchDesign);
  ManagerRun& run = app.run;
  run.outcome = RunOutcome{};
  run.catalog.reset();  // no catalog: no native-language copy
  run.modulonName = readModulonNameOfFile(designFile);
  run.description = std::make_unique<CnxDescription>(reader.takeDescription());
  generateVariationFiles(app, ui, scratchDesign, true, true);
  deleteCnxWorkFiles(cnxPath);
  run.description.reset();
  result.generated = run.outcome.generated && run.outcome.notWritten.empty();
  result.files = run.outcome.written;
  return result;
}

}  // namespace plovix
