// The manager run's start, its state loop and its end.
#include "entry/RunFlow.h"

#include "base/FileSystem.h"
#include "base/Messages.h"
#include "base/OutputKinds.h"
#include "base/PathText.h"
#include "base/QuestionTexts.h"
#include "base/Report.h"
#include "base/TextHelpers.h"

namespace plovix {

void runManager(ManagerApp& app, UserInterface& ui, RunSteps& steps, const char* fileName,
                const char* extraArguments) {
  ManagerRun& run = app.run;
  run.outcome = RunOutcome{};
  run.positionChannelNoted = false;
  run.startTime = std::chrono::system_clock::now();
  run.directLaunch = false;
  run.newFile = true;
  run.editMode = false;
  if (extraArguments != nullptr && *extraArguments != '\0') run.extraArguments = extraArguments;

  steps.loadCatalog(run);
  if (!run.catalog) run.catalog = std::make_unique<WizardCatalog>();
  run.description = std::make_unique<CnxDescription>();

  run.directory = app.projectDirectory;
  run.fileTitle = splitPath(app.lastOutputPath, PathPart::kBaseName);
  run.extension = splitPath(app.lastOutputPath, PathPart::kExtension);
  run.modulonName.clear();

  if (chooseFirstState(app, ui, fileName)) runPages(app, steps);

  app.lastOutputPath = run.outputPath();
  app.projectDirectory = run.directory;
  run.description.reset();
  run.catalog.reset();
}

bool chooseFirstState(ManagerApp& app, UserInterface& ui, const char* fileName) {
  ManagerRun& run = app.run;
  const std::string argument = fileName == nullptr ? std::string() : std::string(fileName);
  if (trimRight(argument).empty()) {
    run.state = RunState::kActionPage;
    return true;
  }
  run.fileTitle = splitPath(argument, PathPart::kBaseName);
  run.extension = splitPath(argument, PathPart::kExtension);
  run.directory = directoryOfPath(argument);

  if (run.extension.empty()) {
    if (!ui.ask(questions::noExtension())) return false;
    run.state = RunState::kBrowserPage;
    return true;
  }
  if (!isOutputExtension(run.extension)) {
    if (!ui.ask(questions::illegalExtension(run.extension))) return false;
    run.state = RunState::kBrowserPage;
    return true;
  }
  if (argument.find_first_of("*?") != std::string::npos) {
    run.state = RunState::kBrowserPage;
    return true;
  }
  if (!fileExists(argument)) {
    if (!ui.ask(questions::fileDoesNotExistCreate(argument))) return false;
    run.state = RunState::kModulonPage;
    return true;
  }
  const std::string nameRead = readModulonNameOfFile(argument);
  if (!nameRead.empty() && !WizardCatalog::isNotWizardMarker(nameRead)) {
    run.modulonName = run.catalog->resolveAlias(nameRead);
    if (!run.catalog->findCommandLine(run.modulonName).empty()) {
      run.directLaunch = true;
      run.newFile = false;
      run.state = RunState::kLaunch;
    } else {
      reportError(ui, Msg::kModulonNotListed, run.modulonName);
      run.newFile = false;
      run.state = RunState::kBrowserPage;
    }
    return true;
  }
  if (!ui.askToReplaceUserFile(questions::notWizardGenerated(argument), argument)) return false;
  run.newFile = false;
  run.state = RunState::kBrowserPage;
  return true;
}

namespace {

// Deletes the CNX files under the old and the new output name when the name changed on a page.
void dropStaleCnxFiles(const std::string& oldCnxPath, const std::string& newCnxPath) {
  if (newCnxPath == oldCnxPath) return;
  deleteFile(oldCnxPath);
  deleteFile(newCnxPath);
}

// The plug-in's exit code as the run reads it: the low byte, signed; 3 means Back like -1.
int32_t pluginResultOf(int32_t exitCode) {
  const int32_t result = static_cast<int8_t>(static_cast<uint8_t>(exitCode & 0xFF));
  return result == 3 ? -1 : result;
}

// A design file named at the start that does not exist yet: the modulon page starts with its full path, so
// its directory and base name, and with its language.
void presetWithNamedFile(ModulonSelectionPage& page, const ManagerRun& run) {
  page.outputText = fullPath(run.outputPath());
  page.directory = directoryOfPath(page.outputText);
  page.extension = run.extension;
}

}  // namespace

void runPages(ManagerApp& app, RunSteps& steps) {
  ManagerRun& run = app.run;
  ActionPage actionPage;
  actionPage.createNew = true;
  actionPage.notice = questions::makerNotice();
  ModulonSelectionPage modulonPage;
  modulonPage.directory = app.projectDirectory;
  if (run.state == RunState::kModulonPage) presetWithNamedFile(modulonPage, run);
  VariationBrowserPage browserPage;
  bool rememberedCreate = false;
  run.pluginResult = 1;

  PageResult loopResult = PageResult::kNext;
  while (loopResult != PageResult::kFinish && loopResult != PageResult::kCancel) {
    switch (run.state) {
      case RunState::kActionPage: {
        actionPage.setCaption(std::string(kManagerName) + " [page 1]");
        actionPage.pageKind = PageKind::kFirst;
        loopResult = steps.showActionPage(run, actionPage);
        if (loopResult == PageResult::kNext) {
          if (actionPage.createNew != rememberedCreate) {
            run.fileTitle.clear();
            run.extension.clear();
            run.directory = app.projectDirectory;
            run.modulonName.clear();
          }
          run.state = actionPage.createNew ? RunState::kModulonPage : RunState::kBrowserPage;
          rememberedCreate = actionPage.createNew;
        }
        break;
      }
      case RunState::kModulonPage: {
        const std::string oldCnxPath = run.cnxPath();
        modulonPage.setCaption(std::string(kManagerName) + " [page 2a]");
        modulonPage.pageKind = PageKind::kMiddle;
        loopResult = steps.showModulonPage(run, modulonPage);
        run.fileTitle = modulonPage.baseName;
        run.extension = modulonPage.extension;
        run.directory = modulonPage.directory;
        run.modulonName = modulonPage.modulonName;
        run.newFile = true;
        if (loopResult == PageResult::kNext) {
          dropStaleCnxFiles(oldCnxPath, run.cnxPath());
          run.state = RunState::kLaunch;
        } else {
          run.state = RunState::kActionPage;
        }
        run.editMode = false;
        break;
      }
      case RunState::kBrowserPage: {
        browserPage.directory = run.directory;
        browserPage.baseName = run.fileTitle;
        browserPage.extension = run.extension;
        browserPage.modulonName = run.modulonName;
        const std::string oldCnxPath = run.cnxPath();
        browserPage.pageKind = PageKind::kMiddle;
        loopResult = steps.showBrowserPage(run, browserPage);
        run.directory = browserPage.directory;
        run.fileTitle = browserPage.baseName;
        run.extension = browserPage.extension;
        run.modulonName = browserPage.modulonName;
        run.newFile = browserPage.newVariation;
        if (loopResult == PageResult::kNext) {
          dropStaleCnxFiles(oldCnxPath, run.cnxPath());
          run.state = RunState::kLaunch;
        } else if (loopResult == PageResult::kBack) {
          run.state = RunState::kActionPage;
        }
        run.editMode = true;
        break;
      }
      case RunState::kLaunch: {
        if (!run.newFile) {
          const std::string cnxPath = run.cnxPath();
          const bool prepared = fileExists(cnxPath) ? steps.stripGenerationLine(run, cnxPath)
                                                    : steps.extractRetrievalInfo(run, run.outputPath());
          if (!prepared) {
            loopResult = PageResult::kCancel;
            break;
          }
        }
        run.modulonName = run.catalog->resolveAlias(run.modulonName);
        const LaunchResult launch = steps.launchPlugin(run);
        if (!launch.started) {
          loopResult = PageResult::kBack;
          run.state = run.editMode ? RunState::kBrowserPage : RunState::kModulonPage;
          break;
        }
        run.pluginResult = pluginResultOf(launch.exitCode);
        if (run.pluginResult == 0) {
          run.state = RunState::kGenerate;
        } else if (run.pluginResult == -1) {
          run.state = run.editMode ? RunState::kBrowserPage : RunState::kModulonPage;
        } else {
          loopResult = PageResult::kCancel;
        }
        break;
      }
      case RunState::kGenerate: {
        if (steps.readDescription(run)) {
          run.fileTitle = steps.resolveSubComponentClash(run);
          const GenerationMode mode = run.description->generationMode;
          if (mode == GenerationMode::kStandard) {
            steps.generateVariationFiles(run, run.outputPath(), true, true);
          } else if (mode == GenerationMode::kSymbolOnly) {
            steps.generateVariationFiles(run, run.outputPath(), false, true);
          }
          steps.deleteWorkFiles(run);
          steps.offerVendorScript(run);
        }
        loopResult = PageResult::kFinish;
        break;
      }
      default:
        loopResult = PageResult::kCancel;
        break;
    }
  }
}

}  // namespace plovix
