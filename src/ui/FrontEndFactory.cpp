// Implementation of the front-end choice.
#include "ui/FrontEndFactory.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "InstallLayout.h"
#include "base/FileSystem.h"
#include "base/OutputKinds.h"
#include "base/QuestionTexts.h"
#include "base/Report.h"
#include "base/TextHelpers.h"
#include "hdl/HdlTextMode.h"
#include "ui/BatchFrontEnd.h"
#include "ui/ConsoleFrontEnd.h"
#include "ui/QtModule.h"

namespace plovix {

bool parseFrontEndKind(const std::string& text, FrontEndKind& kind) {
  if (text == "batch") {
    kind = FrontEndKind::kBatch;
  } else if (text == "console") {
    kind = FrontEndKind::kConsole;
  } else if (text == "qt") {
    kind = FrontEndKind::kQt;
  } else {
    return false;
  }
  return true;
}

namespace {

// The variables of the batch choices and the values each takes.
struct SettingValues {
  const char* variable;
  std::vector<std::string> values;
};

std::vector<SettingValues> frontEndSettings() {
  std::vector<std::string> languages;
  for (const OutputKind& kind : kOutputKinds) languages.emplace_back(kind.cliWord);
  return {{"PLOVIX_UI", {"batch", "console", "qt"}},
          {"PLOVIX_ANSWER", {"ok", "cancel"}},
          {"PLOVIX_LANGUAGE", languages},
          {kHdlTextVariable, {"standard", "valid"}}};
}

}  // namespace

std::string invalidFrontEndSetting() {
  for (const SettingValues& setting : frontEndSettings()) {
    const std::string value = environmentVariable(setting.variable);
    if (value.empty()) continue;
    const std::string word = toLowerText(value);
    if (std::find(setting.values.begin(), setting.values.end(), word) != setting.values.end()) continue;
    std::string values;
    for (const std::string& allowed : setting.values) values += (values.empty() ? "" : ", ") + allowed;
    return errorMessage(Msg::kUsageInvalidEnvironment, setting.variable, value, values);
  }
  return {};
}

FrontEndOptions frontEndOptionsFromEnvironment() {
  FrontEndOptions options;
  FrontEndKind kind;
  if (parseFrontEndKind(toLowerText(environmentVariable("PLOVIX_UI")), kind)) options.kind = kind;
  options.modulon = environmentVariable("PLOVIX_MODULON");
  options.language = toLowerText(environmentVariable("PLOVIX_LANGUAGE"));
  options.answerOk = toLowerText(environmentVariable("PLOVIX_ANSWER")) != "cancel";
  return options;
}

namespace {

// Whether Qt can open windows here: a display, or a platform plug-in chosen explicitly (offscreen, say).
bool displayAvailable() {
  return !environmentVariable("DISPLAY").empty() || !environmentVariable("WAYLAND_DISPLAY").empty() ||
         !environmentVariable("QT_QPA_PLATFORM").empty();
}

FrontEndKind terminalOrBatch() {
  return isatty(STDIN_FILENO) ? FrontEndKind::kConsole : FrontEndKind::kBatch;
}

// The note on standard error when the Qt module could not give a front end.
std::string qtModuleNote(const QtModuleLoad& load, bool usingConsole) {
  const std::string instead = usingConsole ? "console" : "batch";
  switch (load.failure) {
    case QtModuleLoad::Failure::kNotInstalled:
      return errorMessage(Msg::kQtFrontEndNotInstalled, PLOVIX_QT_MODULE_FILE, load.detail, instead);
    case QtModuleLoad::Failure::kOtherVersion:
      return errorMessage(Msg::kQtFrontEndOtherVersion, load.detail, instead);
    default:
      return errorMessage(Msg::kQtFrontEndNotLoaded, load.detail, instead);
  }
}

}  // namespace

std::unique_ptr<FrontEnd> makeFrontEnd(const FrontEndOptions& options) {
  FrontEndKind kind = options.kind;
  if (kind == FrontEndKind::kAutomatic) {
    kind = displayAvailable() && qtModuleInstalled() ? FrontEndKind::kQt : terminalOrBatch();
  }
  if (kind == FrontEndKind::kQt) {
    if (!displayAvailable()) {
      // Asking for windows where none can open falls back to the terminal instead of failing.
      kind = terminalOrBatch();
      std::fprintf(stderr, "plovix: %s\n",
                   questions::qtFrontEndUnavailable(kind == FrontEndKind::kConsole).c_str());
    } else {
      QtModuleLoad load = loadQtFrontEnd(options);
      if (load.frontEnd != nullptr) return std::move(load.frontEnd);
      kind = terminalOrBatch();
      std::fprintf(stderr, "plovix: %s\n", qtModuleNote(load, kind == FrontEndKind::kConsole).c_str());
    }
  }
  if (kind == FrontEndKind::kConsole) return std::make_unique<ConsoleFrontEnd>(options);
  return std::make_unique<BatchFrontEnd>(options);
}

}  // namespace plovix
