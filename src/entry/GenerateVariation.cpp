// Writing a variation's files in their fixed order between the user's confirmations, and the native-language
// copy handed to the host.
#include "entry/GenerateVariation.h"

#include "base/OutputKinds.h"
#include "base/PathText.h"
#include "base/TextHelpers.h"
#include "entry/ConflictChecks.h"
#include "hdl/ThdlFileWriter.h"
#include "hdl/VerilogFileWriter.h"
#include "hdl/VhdlFileWriter.h"
#include "plovix_host.h"

namespace plovix {

namespace {

// Asks the overwrite question when something would be overwritten; true to write.
bool confirmOverwrite(UserInterface& ui, const ManagerApp& app, bool companions, bool symbol) {
  const std::string question = listExistingOutputs(app.run, app.projectDirectory, companions, symbol);
  return question.empty() || ui.ask(question);
}

// The design file of the output language, then, once confirmed, the companions, symbol and templates.
void writeDesignSet(ManagerApp& app, UserInterface& ui, ThdlFileWriter& thdl, const std::string& basePath,
                    bool writeSymbol) {
  ManagerRun& run = app.run;
  CnxDescription& description = *run.description;
  const std::string& extension = run.extension;
  VhdlFileWriter vhdl(ui, basePath, run.modulonName, description);
  VerilogFileWriter verilog(ui, basePath, run.modulonName, description);
  HdlFileWriter* const writers[] = {&thdl, &vhdl, &verilog};
  for (HdlFileWriter* writer : writers) {
    if (writer->designExtension() == extension) writer->writeDesignFile();
  }

  if (!confirmOverwrite(ui, app, true, writeSymbol)) return;
  thdl.writeCompanionFile();
  if (!description.uses2D) vhdl.writeCompanionFile();
  if (writeSymbol) thdl.writeSymbolFile();
  if (extension == thdl.designExtension()) {
    thdl.writeInstanceFile();
  } else if (extension == vhdl.designExtension()) {
    vhdl.writeInstanceFile();
  } else if (extension == verilog.designExtension()) {
    verilog.writeBlackBoxFile();
    verilog.writeInstanceFile();
  }
}

// A description that asks for the symbol alone.
void writeSymbolOnly(ManagerApp& app, UserInterface& ui, ThdlFileWriter& thdl) {
  if (confirmOverwrite(ui, app, false, true)) thdl.writeSymbolFile();
}

// The design text in the modulon's native language, when the catalog names one, handed to the host.
void writeNativeCopy(ManagerApp& app, UserInterface& ui, const std::string& basePath) {
  ManagerRun& run = app.run;
  if (run.catalog == nullptr) return;
  const CatalogEntry* entry = run.catalog->findEntry(run.modulonName);
  if (entry == nullptr || entry->nativeHdl.empty()) return;
  const OutputKind* kind = outputKindOfExtension(extensionOfKind(trimText(entry->nativeHdl)));
  if (kind == nullptr) return;
  std::string text;
  switch (kind->language) {
    case OutputLanguage::kVhdl:
      text = VhdlFileWriter(ui, basePath, run.modulonName, *run.description).designText();
      break;
    case OutputLanguage::kVerilog:
      text = VerilogFileWriter(ui, basePath, run.modulonName, *run.description).designText();
      break;
    case OutputLanguage::kThdl:
      return;  // a copy is made in VHDL or Verilog HDL only
  }
  const std::string path = basePath + "_enc" + std::string(kind->designExtension);
  run.encPath = path;
  cpt_zpip_write_file(path.c_str(), text.c_str(), 0, 0);
}

}  // namespace

bool generateVariationFiles(ManagerApp& app, UserInterface& ui, const std::string& outputPath,
                            bool writeDesign, bool writeSymbol) {
  if (!writeDesign && !writeSymbol) return true;
  ManagerRun& run = app.run;
  if (run.description == nullptr) return true;

  // The checks and the writers read the output name from the run; a THDL fallback changes its extension.
  run.directory = directoryOfPath(outputPath);
  run.fileTitle = splitPath(outputPath, PathPart::kBaseName);
  run.extension = splitPath(outputPath, PathPart::kExtension);
  const std::string basePath = run.directory + run.fileTitle;

  if (run.description->uses2D && !offerThdlFallback(ui, run.extension)) return true;

  const bool goOn = confirmSameNameFiles(ui, run, app.projectDirectory);
  if (goOn) {
    ThdlFileWriter thdl(ui, basePath, run.modulonName, *run.description);
    if (writeDesign) {
      writeDesignSet(app, ui, thdl, basePath, writeSymbol);
    } else {
      writeSymbolOnly(app, ui, thdl);
    }
  }
  writeNativeCopy(app, ui, basePath);
  return goOn;
}

}  // namespace plovix
