// A run set up for launch tests: a temporary library with a catalog, an output directory and a recording UI.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <memory>
#include <string>
#include <vector>

#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/PathText.h"
#include "entry/CommandWords.h"
#include "entry/ManagerApp.h"
#include "entry/PluginLaunch.h"
#include "entry/PluginLaunchParts.h"

namespace plovix::testing {

// Writes an executable shell script.
inline void writeScript(const TempDir& dir, const std::string& name, const std::string& body) {
  dir.write(name, "#!/bin/sh\n" + body);
  chmod(dir.path(name).c_str(), 0755);
}

inline bool fileExistsForTest(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0;
}

class LaunchFixture : public ::testing::Test {
 protected:
  LaunchFixture() {
    app.restoreDirectoryAtExit = false;
    app.run.directory = out.dir();
    app.run.fileTitle = "var";
    app.run.extension = ".tdf";
    app.run.modulonName = "M";
    app.run.newFile = true;
    app.run.directLaunch = false;
  }

  void writeCatalog(const std::string& text) {
    lib.write("test_wizard.lst", text);
    app.run.catalog = std::make_unique<WizardCatalog>();
    app.run.catalog->loadFrom(ui, "", lib.dir());
  }

  std::string outputPath() const { return app.run.outputPath(); }
  std::string expand(const std::string& text) const {
    return expandCommandMacros(commandContextOf(app.run), text);
  }
  std::vector<std::string> arguments(long threadId) {
    return pluginArguments(app, ui, app.run.catalog->findCommandLine(app.run.modulonName), threadId);
  }

  TempDir lib;
  TempDir out;
  RecordingInterface ui;
  ManagerApp app;
};

}  // namespace plovix::testing
