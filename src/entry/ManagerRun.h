// The state of one manager run: the output name, the chosen modulon, the flags, and what the run owns.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

#include "base/RunOutcome.h"
#include "catalog/WizardCatalog.h"
#include "cnx/CnxDescription.h"

namespace plovix {

// States of the run's loop.
enum class RunState : int32_t {
  kActionPage = 1,
  kModulonPage = 2,
  kBrowserPage = 3,
  kLaunch = 4,
  kGenerate = 5,
};

struct ManagerRun {
  std::string fileTitle;
  std::string extension;
  std::string directory;
  std::string modulonName;
  std::string extraArguments;
  std::string encPath;
  bool editMode = false;
  bool newFile = true;
  bool directLaunch = false;
  int32_t pluginResult = 1;
  RunState state = RunState::kActionPage;
  std::unique_ptr<CnxDescription> description;
  std::unique_ptr<WizardCatalog> catalog;
  // What the run wrote; reset when a run starts and kept after it ends.
  RunOutcome outcome;
  // When the run started: temporary files older than this that no writer holds were left by a killed run.
  std::chrono::system_clock::time_point startTime;
  // Whether the run has said that the position channel's name was taken (it says so once).
  bool positionChannelNoted = false;

  std::string outputPath() const { return directory + fileTitle + extension; }
  std::string cnxPath() const { return directory + fileTitle + ".cnx"; }
};

}  // namespace plovix
