// plovix --lint for one file: the sub-modules' models or stubs, then each tool in a scratch directory.
#include "lint/LintVariation.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "base/FileSystem.h"
#include "base/Format.h"
#include "base/PathText.h"
#include "base/Report.h"
#include "base/TextFile.h"
#include "base/TextHelpers.h"
#include "lint/LintStubs.h"
#include "platform/CapturedProcess.h"
#include "platform/ProgramSearch.h"

namespace plovix {

namespace {

constexpr size_t kOutputLimit = 4 << 20;

bool isVhdl(const std::string& path) {
  return equalsIgnoringCase(splitPath(path, PathPart::kExtension), ".vhd");
}

bool isVerilog(const std::string& path) {
  return equalsIgnoringCase(splitPath(path, PathPart::kExtension), ".v");
}

// A Verilog simple identifier: a letter or "_", then letters, digits, "_" and "$".
bool isIdentifier(const std::string& name) {
  if (name.empty() || !(std::isalpha(static_cast<unsigned char>(name[0])) || name[0] == '_')) return false;
  for (char c : name)
    if (!(std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '$')) return false;
  return true;
}

// A scratch directory removed with everything in it when it goes.
class Scratch {
 public:
  Scratch() {
    const std::string base = environmentVariable("TMPDIR");
    std::string pattern = (base.empty() ? std::string("/tmp") : base) + "/plovix-lint-XXXXXX";
    if (mkdtemp(pattern.data()) != nullptr)
      path_ = pattern + "/";
    else
      error_ = errno;
  }
  ~Scratch() {
    if (!path_.empty()) removeTree(path_);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  const std::string& path() const { return path_; }
  int error() const { return error_; }

 private:
  static void removeTree(const std::string& directory) {
    for (const DirectoryEntry& entry : listDirectory(directory)) {
      const std::string path = directory + entry.name;
      struct stat st {};
      if (lstat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode))
        removeTree(path + "/");
      else
        deleteFile(path);
    }
    rmdir(directory.c_str());
  }

  std::string path_;
  int error_ = 0;
};

// What one file of the lint needs: the models found in the libraries, the other sub-modules' files and
// stubs, and the folder of the models (for the tools' library search).
struct SubModules {
  std::vector<std::string> modelFiles;   // bundled models
  std::vector<std::string> besideFiles;  // design files of the user's beside the variation
  std::vector<std::string> stubFiles;    // stubs written into the scratch directory
  std::string modelDirectory;            // the first library's hdl/<language> folder that has a model
  std::string packageFile;               // VHDL: the models' lpm_components.vhd, when there is one
};

// Runs one tool; its findings go into the report, and a failed run counts as a rejection.
void runTool(const std::string& tool, const std::vector<std::string>& arguments, const Scratch& scratch,
             const LintSettings& settings, LintReport& report) {
  const CapturedRun run = runCapturingOutput(arguments, kOutputLimit, settings.timeoutMs,
                                             {scratch.path(), true, {"DISPLAY", "WAYLAND_DISPLAY"}});
  std::vector<LintFinding> findings = parseToolOutput(tool, run.output);
  std::string failure;
  switch (run.end) {
    case CapturedRun::End::kExited:
      if (run.status != 0) failure = errorMessage(Msg::kLintToolExit, std::to_string(run.status));
      break;
    case CapturedRun::End::kSignalled:
      failure = errorMessage(Msg::kLintToolKilled, std::to_string(run.status));
      break;
    case CapturedRun::End::kTimedOut:
      failure = errorMessage(Msg::kLintToolTimedOut, std::to_string(settings.timeoutMs / 1000));
      break;
    case CapturedRun::End::kTooMuchOutput:
      failure = errorMessage(Msg::kLintToolTooMuchOutput, std::to_string(kOutputLimit));
      break;
    case CapturedRun::End::kNotStarted:
      failure = errorMessage(Msg::kLintToolCannotStart, std::strerror(run.status));
      break;
  }
  for (LintFinding& finding : findings) report.findings.push_back(std::move(finding));
  // A rejection always ends with a line of its own that says so, whatever the tool printed before.
  if (failure.empty()) return;
  report.findings.push_back({tool, "", 0, failure, true});
  if (report.rejectedBy.empty() || report.rejectedBy.back() != tool) report.rejectedBy.push_back(tool);
}

bool writeStub(const Scratch& scratch, const LintStub& stub, const std::string& extension,
               SubModules& modules) {
  const std::string path = scratch.path() + stub.name + "_stub" + extension;
  int errorNumber = 0;
  if (!writeTextFile(path, stub.text, errorNumber)) return false;
  modules.stubFiles.push_back(path);
  return true;
}

// Where each sub-module comes from; stubs are written into the scratch directory.
SubModules findSubModules(const std::string& path, const std::string& text, const LintSettings& settings,
                          const Scratch& scratch) {
  const bool vhdl = isVhdl(path);
  const std::string folder = vhdl ? "/hdl/vhdl/" : "/hdl/verilog/";
  const std::string extension = vhdl ? ".vhd" : ".v";
  const std::string beside = splitPath(path, PathPart::kDirectory);
  SubModules modules;
  for (const std::string& directory : settings.libraryDirectories) {
    const std::string package = directory + folder + "lpm_components.vhd";
    if (vhdl && modules.packageFile.empty() && fileExists(package)) modules.packageFile = package;
  }
  std::vector<std::string> stubbed;
  for (const std::string& name : variationModules(text)) {
    bool found = false;
    for (const std::string& directory : settings.libraryDirectories) {
      const std::string model = directory + folder + toLowerText(name) + extension;
      if (!found && fileExists(model)) {
        modules.modelFiles.push_back(model);
        if (modules.modelDirectory.empty()) modules.modelDirectory = directory + folder;
        found = true;
      }
    }
    for (const std::string& own : {name + extension, vhdl ? std::string() : name + "_bb.v"}) {
      if (!found && !own.empty() && fileExists(beside + own)) {
        modules.besideFiles.push_back(beside + own);
        found = true;
      }
    }
    std::string declarations;
    int errorNumber = 0;
    if (!found && vhdl && readTextFile(beside + name + ".cmp", declarations, errorNumber)) {
      for (const LintStub& stub : vhdlStubs(text, declarations, {name}))
        found = writeStub(scratch, stub, extension, modules) || found;
    }
    if (!found) stubbed.push_back(name);
  }
  for (const LintStub& stub : vhdl ? vhdlStubs(text, text, stubbed) : verilogStubs(text, stubbed))
    writeStub(scratch, stub, extension, modules);
  return modules;
}

void lintVhdl(const std::string& path, const std::string& text, const SubModules& modules,
              const Scratch& scratch, const LintSettings& settings, LintReport& report) {
  const std::vector<std::string> common = {"--std=08", "--workdir=" + scratch.path(),
                                           "-fno-caret-diagnostics"};
  auto ghdl = [&](const std::string& command, std::vector<std::string> extra) {
    std::vector<std::string> arguments = {"ghdl", command};
    arguments.insert(arguments.end(), common.begin(), common.end());
    arguments.insert(arguments.end(), extra.begin(), extra.end());
    return arguments;
  };
  const size_t rejected = report.rejectedBy.size();
  // The models are analysed into library lpm (which the package names) and into work, where the
  // variation's own component declarations find them by default binding.
  const bool lpm = toLowerText(text).find("lpm.") != std::string::npos || !modules.modelFiles.empty();
  if (lpm && !modules.packageFile.empty()) {
    std::vector<std::string> files = {"--work=lpm", modules.packageFile};
    files.insert(files.end(), modules.modelFiles.begin(), modules.modelFiles.end());
    runTool("ghdl", ghdl("-a", files), scratch, settings, report);
  }
  std::vector<std::string> units = modules.modelFiles;
  units.insert(units.end(), modules.besideFiles.begin(), modules.besideFiles.end());
  units.insert(units.end(), modules.stubFiles.begin(), modules.stubFiles.end());
  if (!units.empty()) runTool("ghdl", ghdl("-a", units), scratch, settings, report);
  runTool("ghdl", ghdl("-a", {path}), scratch, settings, report);
  if (report.rejectedBy.size() == rejected)
    runTool("ghdl", ghdl("-e", {"-Wno-binding", splitPath(path, PathPart::kBaseName)}), scratch, settings,
            report);
}

void lintVerilog(const std::string& tool, const std::string& path, const SubModules& modules,
                 const Scratch& scratch, const LintSettings& settings, LintReport& report) {
  const std::string top = splitPath(path, PathPart::kBaseName);
  std::vector<std::string> files = {path};
  files.insert(files.end(), modules.besideFiles.begin(), modules.besideFiles.end());
  files.insert(files.end(), modules.stubFiles.begin(), modules.stubFiles.end());
  std::vector<std::string> arguments;
  if (tool == "iverilog") {
    arguments = {"iverilog", "-Wall", "-Wno-portbind", "-o", scratch.path() + "lint.vvp", "-s", top};
    if (!modules.modelDirectory.empty()) arguments.insert(arguments.end(), {"-y", modules.modelDirectory});
  } else if (tool == "verilator") {
    arguments = {"verilator", "--lint-only", "-Wno-PINMISSING", "--top-module", top};
    if (!modules.modelDirectory.empty()) arguments.insert(arguments.end(), {"-y", modules.modelDirectory});
  } else {
    // Yosys reads the files first, then the script. No text of the user's enters the script: the models'
    // folder is linked into the scratch directory, and a file name that is not an identifier (and so
    // cannot name the top module) leaves the top module for Yosys to find.
    const bool libdir = !modules.modelDirectory.empty() &&
                        symlink(modules.modelDirectory.c_str(), (scratch.path() + "models").c_str()) == 0;
    const bool named = isIdentifier(top);
    const std::string script =
        formatText("hierarchy -check%s %s%s; proc; flatten; check", libdir ? " -libdir models" : "",
                   named ? "-top " : "-auto-top", named ? top.c_str() : "");
    arguments = {"yosys", "-q", "-w", "Complex async reset", "-p", script};
  }
  arguments.insert(arguments.end(), files.begin(), files.end());
  runTool(tool, arguments, scratch, settings, report);
}

}  // namespace

std::vector<std::string> lintToolsOfLanguage(const std::string& path) {
  if (isVhdl(path)) return {"ghdl"};
  if (isVerilog(path)) return {"iverilog", "verilator", "yosys"};
  return {};
}

std::vector<std::string> installedLintTools(const std::string& path) {
  const std::string searchPath = environmentVariable("PATH");
  std::vector<std::string> tools;
  for (const std::string& tool : lintToolsOfLanguage(path))
    if (!findProgram(tool, searchPath.empty() ? "/usr/bin:/bin" : searchPath).empty()) tools.push_back(tool);
  return tools;
}

LintReport lintVariation(const std::string& path, const LintSettings& settings) {
  LintReport report;
  if (!isVhdl(path) && !isVerilog(path)) {
    report.problem = errorMessage(Msg::kLintNotHdl, path);
    return report;
  }
  std::string text;
  int errorNumber = 0;
  if (!readTextFile(path, text, errorNumber)) {
    report.problem = errorMessage(Msg::kLintCannotRead, path, std::strerror(errorNumber));
    return report;
  }
  report.toolsRun = installedLintTools(path);
  if (report.toolsRun.empty()) return report;
  const Scratch scratch;
  if (scratch.path().empty()) {
    report.problem = errorMessage(Msg::kLintNoScratch, path, std::strerror(scratch.error()));
    return report;
  }
  const std::string full = fullPath(path);
  const SubModules modules = findSubModules(full, text, settings, scratch);
  for (const std::string& tool : report.toolsRun) {
    if (tool == "ghdl")
      lintVhdl(full, text, modules, scratch, settings, report);
    else
      lintVerilog(tool, full, modules, scratch, settings, report);
  }
  // The tools name the variation by its full path and the stubs by their scratch path: show the path the
  // user gave and the stub's file name.
  for (LintFinding& finding : report.findings) {
    if (finding.file == full)
      finding.file = path;
    else if (startsWith(finding.file, scratch.path()))
      finding.file.erase(0, scratch.path().size());
  }
  return report;
}

}  // namespace plovix
