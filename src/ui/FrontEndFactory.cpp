// Implementation of the front-end choice.
#include "ui/FrontEndFactory.h"

#include <unistd.h>

#include <cstdio>

#include "InstallLayout.h"
#include "base/FileSystem.h"
#include "base/QuestionTexts.h"
#include "base/Report.h"
#include "base/TextHelpers.h"
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

FrontEndOptions frontEndOptionsFromEnvironment() {
  FrontEndOptions options;
  FrontEndKind kind;
  if (parseFrontEndKind(environmentVariable("PLOVIX_UI"), kind)) options.kind = kind;
  options.modulon = environmentVariable("PLOVIX_MODULON");
  options.language = toLowerText(environmentVariable("PLOVIX_LANGUAGE"));
  options.answerOk = environmentVariable("PLOVIX_ANSWER") != "cancel";
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
