// One run of the plug-in: from the command line to the CNX description beside the output file.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "Modulon.h"
#include "PluginArguments.h"

namespace plovix::wizard {

// The exit codes the manager reads.
constexpr int kExitFinish = 0;
constexpr int kExitCancel = 2;
constexpr int kExitBack = 3;

enum class DialogOutcome { kFinish, kBack, kCancel };

// Asks the user for the values; implemented by the terminal prompts and the window dialog.
class ValueDialog {
 public:
  virtual ~ValueDialog() = default;
  // Edits values in place; every value it leaves is allowed and the values fit together on kFinish.
  virtual DialogOutcome collect(const Modulon& modulon, const PluginArguments& arguments,
                                SettingValues& values) = 0;
};

// Chooses the dialog for the arguments once they are parsed (nullptr: no questions are asked).
class DialogChooser {
 public:
  virtual ~DialogChooser() = default;
  virtual ValueDialog* dialogFor(const PluginArguments& arguments) = 0;
};

// Runs the plug-in and gives its exit code; the answers of --describe and --help go to output, refusals and
// notes to messages.
int runWizard(const std::vector<std::string>& argv, const std::vector<Modulon>& modulons,
              DialogChooser& chooser, std::ostream& output, std::ostream& messages);

// The values of a run before any question: defaults, then the prepared description's PRIVATE: values (edit),
// then the NAME=VALUE pairs. Gives a refusal message when a pair names no setting or a bad value.
std::string presetValues(const Modulon& modulon, const PluginArguments& arguments, SettingValues& values);

// The complete CNX text for these values.
std::string descriptionFor(const Modulon& modulon, const SettingValues& values, OutputLanguage language);

OutputLanguage languageOf(const std::string& outputPath);

// "A, B, C" of the modulons' names and of a modulon's setting names.
std::string modulonNamesText(const std::vector<Modulon>& modulons);
std::string settingNamesText(const Modulon& modulon);

}  // namespace plovix::wizard
