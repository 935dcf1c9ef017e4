// Writing a variation's files in their fixed order between the user's confirmations, and the native-language
// copy handed to the host.
#include "entry/GenerateVariation.h"

#include <cerrno>
#include <functional>
#include <optional>
#include <vector>

#include "base/Messages.h"
#include "base/OutputKinds.h"
#include "base/PathText.h"
#include "base/Report.h"
#include "base/TextHelpers.h"
#include "entry/ConflictChecks.h"
#include "hdl/HdlChecks.h"
#include "hdl/HdlTextMode.h"
#include "hdl/ThdlFileWriter.h"
#include "hdl/VerilogFileWriter.h"
#include "hdl/VhdlFileWriter.h"
#include "plovix_host.h"

namespace plovix {

namespace {

// The netlist of the run's description, built once, when a VHDL or Verilog text first needs it.
class NetlistOnce {
 public:
  explicit NetlistOnce(const ManagerRun& run) : run_(run) {}
  const Netlist& get() {
    if (!netlist_) netlist_ = buildNetlist(*run_.description, run_.modulonName);
    return *netlist_;
  }

 private:
  const ManagerRun& run_;
  std::optional<Netlist> netlist_;
};

// Adds a warning for every construct of the description whose text in `language` the mode does not make
// valid HDL of the same meaning; `path` names the file.
void warnAboutConstructs(ManagerRun& run, NetlistOnce& netlist, OutputLanguage language,
                         const std::string& path) {
  if (language == OutputLanguage::kThdl) return;
  const HdlTextMode mode = hdlTextModeFromEnvironment();
  const std::string fileName = nameWithExtension(path);
  for (const HdlFinding& finding :
       findHdlConstructs(*run.description, netlist.get(), run.modulonName, language)) {
    std::string warning = hdlFindingWarning(finding, fileName, mode);
    if (!warning.empty()) run.outcome.warnings.push_back(std::move(warning));
  }
}

// Asks the overwrite question when something would be overwritten; true to write.
bool confirmOverwrite(UserInterface& ui, const ManagerApp& app, bool companions, bool symbol) {
  const std::string question = listExistingOutputs(app.run, app.projectDirectory, companions, symbol);
  return question.empty() || ui.ask(question);
}

// A file written after the overwrite question, and the step that writes it.
struct LaterFile {
  std::string path;
  std::function<void()> write;
};

// Writes the files once the overwrite question was answered with OK; otherwise records each as declined.
void writeLaterFiles(UserInterface& ui, ManagerApp& app, bool companions, bool symbol,
                     const std::vector<LaterFile>& files) {
  if (confirmOverwrite(ui, app, companions, symbol)) {
    for (const LaterFile& file : files) file.write();
    return;
  }
  const std::string reason(errorText(Msg::kOverwriteDeclined));
  for (const LaterFile& file : files) app.run.outcome.notWritten.push_back({file.path, reason});
}

// The design file of the output language, then, once confirmed, the companions, symbol and templates.
void writeDesignSet(ManagerApp& app, UserInterface& ui, ThdlFileWriter& thdl, NetlistOnce& netlist,
                    const std::string& basePath, bool writeSymbol) {
  ManagerRun& run = app.run;
  const CnxDescription& description = *run.description;
  const HdlTextMode mode = hdlTextModeFromEnvironment();
  VhdlFileWriter vhdl(ui, basePath, run.modulonName, description, netlist.get(), mode);
  VerilogFileWriter verilog(ui, basePath, run.modulonName, description, netlist.get(), mode);
  HdlFileWriter* const writers[] = {&thdl, &vhdl, &verilog};
  for (HdlFileWriter* writer : writers) writer->recordWritesIn(run.outcome);
  for (HdlFileWriter* writer : writers) {
    if (writer->designExtension() == run.extension) writer->writeDesignFile();
  }

  std::vector<LaterFile> files;
  files.push_back({thdl.companionPath(), [&] { thdl.writeCompanionFile(); }});
  if (!description.uses2D) files.push_back({vhdl.companionPath(), [&] { vhdl.writeCompanionFile(); }});
  if (writeSymbol) files.push_back({thdl.symbolPath(), [&] { thdl.writeSymbolFile(); }});
  if (const OutputKind* kind = outputKindOfExtension(run.extension)) {
    switch (kind->language) {
      case OutputLanguage::kThdl:
        files.push_back({thdl.instancePath(), [&] { thdl.writeInstanceFile(); }});
        break;
      case OutputLanguage::kVhdl:
        files.push_back({vhdl.instancePath(), [&] { vhdl.writeInstanceFile(); }});
        break;
      case OutputLanguage::kVerilog:
        files.push_back({verilog.blackBoxPath(), [&] { verilog.writeBlackBoxFile(); }});
        files.push_back({verilog.instancePath(), [&] { verilog.writeInstanceFile(); }});
        break;
    }
  }
  writeLaterFiles(ui, app, true, writeSymbol, files);
  if (const OutputKind* kind = outputKindOfExtension(run.extension))
    warnAboutConstructs(run, netlist, kind->language, basePath + run.extension);
}

// A description that asks for the symbol alone.
void writeSymbolOnly(ManagerApp& app, UserInterface& ui, ThdlFileWriter& thdl) {
  thdl.recordWritesIn(app.run.outcome);
  writeLaterFiles(ui, app, false, true, {{thdl.symbolPath(), [&] { thdl.writeSymbolFile(); }}});
}

// The design text in the modulon's native language, when the catalog names one, handed to the host.
void writeNativeCopy(ManagerApp& app, UserInterface& ui, NetlistOnce& netlist, const std::string& basePath) {
  ManagerRun& run = app.run;
  if (run.catalog == nullptr) return;
  const CatalogEntry* entry = run.catalog->findEntry(run.modulonName);
  if (entry == nullptr || entry->nativeHdl.empty()) return;
  const OutputKind* kind = outputKindOfExtension(extensionOfKind(trimText(entry->nativeHdl)));
  if (kind == nullptr) return;
  std::string text;
  switch (kind->language) {
    case OutputLanguage::kVhdl:
      text = VhdlFileWriter(ui, basePath, run.modulonName, *run.description, netlist.get(),
                            hdlTextModeFromEnvironment())
                 .designText();
      break;
    case OutputLanguage::kVerilog:
      text = VerilogFileWriter(ui, basePath, run.modulonName, *run.description, netlist.get(),
                               hdlTextModeFromEnvironment())
                 .designText();
      break;
    case OutputLanguage::kThdl:
      return;  // a copy is made in VHDL or Verilog HDL only
  }
  const std::string path = basePath + "_enc" + std::string(kind->designExtension);
  run.encPath = path;
  // The design file's own warnings already name the constructs of its language.
  const OutputKind* designKind = outputKindOfExtension(run.extension);
  if (designKind == nullptr || designKind->language != kind->language)
    warnAboutConstructs(run, netlist, kind->language, path);
  errno = 0;
  const bool written = cpt_zpip_write_file(path.c_str(), text.c_str(), 0, 0) != 0;
  const int cause = written ? 0 : errno;
  if (!written) reportFileErrno(ui, cause, path);
  run.outcome.recordWrite(path, written, fileErrnoMessage(cause, path));
}

}  // namespace

bool generateVariationFiles(ManagerApp& app, UserInterface& ui, const std::string& outputPath,
                            bool writeDesign, bool writeSymbol) {
  if (!writeDesign && !writeSymbol) return true;
  ManagerRun& run = app.run;
  if (run.description == nullptr) return true;

  // The checks and the writers read the output name from the run; an accepted THDL fallback changes its
  // extension, a declined one leaves the run as it was.
  run.directory = directoryOfPath(outputPath);
  run.fileTitle = splitPath(outputPath, PathPart::kBaseName);
  run.extension = splitPath(outputPath, PathPart::kExtension);
  const std::string basePath = run.directory + run.fileTitle;

  if (run.description->uses2D) {
    std::string extension = run.extension;
    if (!offerThdlFallback(ui, extension)) return true;
    run.extension = extension;
  }

  NetlistOnce netlist(run);
  const bool goOn = confirmSameNameFiles(ui, run, app.projectDirectory);
  if (goOn) {
    run.outcome.generated = true;
    ThdlFileWriter thdl(ui, basePath, run.modulonName, *run.description);
    if (writeDesign) {
      writeDesignSet(app, ui, thdl, netlist, basePath, writeSymbol);
    } else {
      writeSymbolOnly(app, ui, thdl);
    }
  }
  writeNativeCopy(app, ui, netlist, basePath);
  return goOn;
}

}  // namespace plovix
