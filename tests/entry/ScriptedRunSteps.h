// A stand-in for the run's steps: pages, launches and reads answer from scripts, and every call is logged.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "entry/RunSteps.h"

namespace plovix::testing {

class ScriptedRunSteps : public RunSteps {
 public:
  // A page script entry: sets the page's fields and gives its result.
  template <class Page>
  using PageScript = std::function<PageResult(Page&)>;

  void loadCatalog(ManagerRun& run) override {
    log.push_back("catalog");
    run.catalog = std::make_unique<WizardCatalog>();
    if (catalogLoader) catalogLoader(*run.catalog);
  }
  PageResult showActionPage(ManagerRun&, ActionPage& page) override {
    log.push_back("action:" + page.caption);
    return next(actionScript, page);
  }
  PageResult showModulonPage(ManagerRun&, ModulonSelectionPage& page) override {
    log.push_back("modulon:" + page.caption);
    return next(modulonScript, page);
  }
  PageResult showBrowserPage(ManagerRun& run, VariationBrowserPage& page) override {
    log.push_back("browser:" + run.directory + "|" + page.baseName + "|" + page.extension + "|" +
                  page.modulonName);
    return next(browserScript, page);
  }
  bool stripGenerationLine(ManagerRun&, const std::string& path) override {
    log.push_back("strip:" + path);
    return prepareResult;
  }
  bool extractRetrievalInfo(ManagerRun&, const std::string& path) override {
    log.push_back("extract:" + path);
    return prepareResult;
  }
  LaunchResult launchPlugin(ManagerRun& run) override {
    log.push_back("launch:" + run.modulonName + (run.newFile ? " new" : " edit") +
                  (run.directLaunch ? " direct" : ""));
    if (launches.empty()) return LaunchResult{true, 2};
    const LaunchResult result = launches.front();
    launches.pop_front();
    return result;
  }
  bool readDescription(ManagerRun& run) override {
    log.push_back("read:" + run.cnxPath());
    run.description->generationMode = generationMode;
    return readResult;
  }
  std::string resolveSubComponentClash(ManagerRun& run) override {
    log.push_back("clash");
    return renameTo.empty() ? run.fileTitle : renameTo;
  }
  bool generateVariationFiles(ManagerRun&, const std::string& outputPath, bool writeDesign,
                              bool writeSymbol) override {
    log.push_back("generate:" + outputPath + (writeDesign ? " design" : "") + (writeSymbol ? " symbol" : ""));
    return true;
  }
  void deleteWorkFiles(ManagerRun&) override { log.push_back("delete"); }
  void offerVendorScript(ManagerRun&) override { log.push_back("script"); }

  std::vector<std::string> log;
  std::function<void(WizardCatalog&)> catalogLoader;
  std::deque<PageScript<ActionPage>> actionScript;
  std::deque<PageScript<ModulonSelectionPage>> modulonScript;
  std::deque<PageScript<VariationBrowserPage>> browserScript;
  std::deque<LaunchResult> launches;
  bool prepareResult = true;
  bool readResult = true;
  GenerationMode generationMode = GenerationMode::kStandard;
  std::string renameTo;

 private:
  // Runs the next script entry; an exhausted script cancels the page.
  template <class Page>
  static PageResult next(std::deque<PageScript<Page>>& script, Page& page) {
    if (script.empty()) return PageResult::kCancel;
    PageScript<Page> step = script.front();
    script.pop_front();
    page.result = step(page);
    return page.result;
  }
};

}  // namespace plovix::testing
