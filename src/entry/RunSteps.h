// The steps a manager run hands to the other subsystems. StandardRunSteps performs them for real; tests
// substitute their own to drive every transition of the run's loop.
#pragma once

#include <string>

#include "entry/ManagerRun.h"
#include "pages/ActionPage.h"
#include "pages/ModulonSelectionPage.h"
#include "pages/VariationBrowserPage.h"

namespace plovix {

struct LaunchResult {
  bool started = false;
  int32_t exitCode = 0;
};

class RunSteps {
 public:
  virtual ~RunSteps() = default;

  // Creates and loads run.catalog.
  virtual void loadCatalog(ManagerRun& run) = 0;

  // Show a page modally and give its result.
  virtual PageResult showActionPage(ManagerRun& run, ActionPage& page) = 0;
  virtual PageResult showModulonPage(ManagerRun& run, ModulonSelectionPage& page) = 0;
  virtual PageResult showBrowserPage(ManagerRun& run, VariationBrowserPage& page) = 0;

  // Edit mode: prepare the CNX file the plug-in starts from.
  virtual bool stripGenerationLine(ManagerRun& run, const std::string& cnxPath) = 0;
  virtual bool extractRetrievalInfo(ManagerRun& run, const std::string& variationPath) = 0;

  // Starts the modulon's plug-in and waits for it.
  virtual LaunchResult launchPlugin(ManagerRun& run) = 0;

  // Reads the description from the run's CNX path into run.description.
  virtual bool readDescription(ManagerRun& run) = 0;

  virtual std::string resolveSubComponentClash(ManagerRun& run) = 0;
  virtual bool generateVariationFiles(ManagerRun& run, const std::string& outputPath, bool writeDesign,
                                      bool writeSymbol) = 0;
  virtual void deleteWorkFiles(ManagerRun& run) = 0;
  virtual void offerVendorScript(ManagerRun& run) = 0;
};

}  // namespace plovix
