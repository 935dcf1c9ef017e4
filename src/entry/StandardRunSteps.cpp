// The real steps of a run, each handing over to the subsystem that does the work.
#include "entry/StandardRunSteps.h"

#include "base/Report.h"
#include "base/SafeWrite.h"
#include "cnx/CnxReader.h"
#include "cnx/RetrievalInfo.h"
#include "entry/ConflictChecks.h"
#include "entry/GenerateVariation.h"
#include "entry/PluginLaunch.h"

namespace plovix {

PageContext StandardRunSteps::pageContext(ManagerRun& run) {
  return PageContext{ui_, *run.catalog, app_.corner, app_.projectDirectory, run.outputPath()};
}

void StandardRunSteps::loadCatalog(ManagerRun& run) {
  run.catalog = std::make_unique<WizardCatalog>();
  run.catalog->load(ui_);
}

PageResult StandardRunSteps::showActionPage(ManagerRun& run, ActionPage& page) {
  PageContext context = pageContext(run);
  return pages_.showActionPage(page, context);
}

PageResult StandardRunSteps::showModulonPage(ManagerRun& run, ModulonSelectionPage& page) {
  PageContext context = pageContext(run);
  return pages_.showModulonPage(page, context);
}

PageResult StandardRunSteps::showBrowserPage(ManagerRun& run, VariationBrowserPage& page) {
  PageContext context = pageContext(run);
  return pages_.showBrowserPage(page, context);
}

bool StandardRunSteps::stripGenerationLine(ManagerRun&, const std::string& cnxPath) {
  return plovix::stripGenerationLine(ui_, cnxPath);
}

bool StandardRunSteps::extractRetrievalInfo(ManagerRun&, const std::string& variationPath) {
  return plovix::extractRetrievalInfo(ui_, variationPath);
}

LaunchResult StandardRunSteps::launchPlugin(ManagerRun& run) {
  // What an earlier run, killed while writing, left in the output directory goes first.
  removeStaleTemporaries(run.directory, run.startTime);
  return plovix::launchPlugin(app_, ui_);
}

bool StandardRunSteps::readDescription(ManagerRun& run) {
  CnxReader reader(ui_, run.cnxPath());
  const bool read = reader.read();
  *run.description = reader.takeDescription();
  return read;
}

std::string StandardRunSteps::resolveSubComponentClash(ManagerRun& run) {
  return plovix::resolveSubComponentClash(ui_, run);
}

bool StandardRunSteps::generateVariationFiles(ManagerRun&, const std::string& outputPath, bool writeDesign,
                                              bool writeSymbol) {
  return plovix::generateVariationFiles(app_, ui_, outputPath, writeDesign, writeSymbol);
}

// A design file that could not be written keeps the work description, so the wizard's settings survive.
void StandardRunSteps::deleteWorkFiles(ManagerRun& run) {
  const std::string designPath = run.outputPath();
  for (const RunOutcome::NotWritten& file : run.outcome.notWritten) {
    if (file.path == designPath) {
      reportError(ui_, Msg::kDescriptionKept, designPath, run.description->cnxPath);
      return;
    }
  }
  deleteCnxWorkFiles(run.description->cnxPath);
}

void StandardRunSteps::offerVendorScript(ManagerRun&) {
  plovix::offerVendorScript(app_, ui_);
}

}  // namespace plovix
