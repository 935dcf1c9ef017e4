// The real steps of a run: the catalog, the pages through a PageHost, the description, launch and generation.
#pragma once

#include "base/UserInterface.h"
#include "entry/ManagerApp.h"
#include "entry/RunSteps.h"
#include "pages/PageHost.h"

namespace plovix {

class StandardRunSteps : public RunSteps {
 public:
  StandardRunSteps(ManagerApp& app, UserInterface& ui, PageHost& pages) : app_(app), ui_(ui), pages_(pages) {}

  void loadCatalog(ManagerRun& run) override;
  PageResult showActionPage(ManagerRun& run, ActionPage& page) override;
  PageResult showModulonPage(ManagerRun& run, ModulonSelectionPage& page) override;
  PageResult showBrowserPage(ManagerRun& run, VariationBrowserPage& page) override;
  bool stripGenerationLine(ManagerRun& run, const std::string& cnxPath) override;
  bool extractRetrievalInfo(ManagerRun& run, const std::string& variationPath) override;
  LaunchResult launchPlugin(ManagerRun& run) override;
  bool readDescription(ManagerRun& run) override;
  std::string resolveSubComponentClash(ManagerRun& run) override;
  bool generateVariationFiles(ManagerRun& run, const std::string& outputPath, bool writeDesign,
                              bool writeSymbol) override;
  void deleteWorkFiles(ManagerRun& run) override;
  void offerVendorScript(ManagerRun& run) override;

 private:
  PageContext pageContext(ManagerRun& run);

  ManagerApp& app_;
  UserInterface& ui_;
  PageHost& pages_;
};

}  // namespace plovix
