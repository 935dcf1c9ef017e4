// Implementation of the front-end choice.
#include "ui/FrontEndFactory.h"

#include <unistd.h>

#include <cstdio>

#include "base/FileSystem.h"
#include "base/QuestionTexts.h"
#include "base/TextHelpers.h"
#include "ui/BatchFrontEnd.h"
#include "ui/ConsoleFrontEnd.h"
#include "ui/QtFrontEndHook.h"

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

bool qtFrontEndAvailable() {
#ifdef PLOVIX_HAVE_QT
  return true;
#else
  return false;
#endif
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

}  // namespace

std::unique_ptr<FrontEnd> makeFrontEnd(const FrontEndOptions& options) {
  FrontEndKind kind = options.kind;
  if (kind == FrontEndKind::kAutomatic) {
    kind = displayAvailable() && qtFrontEndAvailable() ? FrontEndKind::kQt : terminalOrBatch();
  } else if (kind == FrontEndKind::kQt && !(displayAvailable() && qtFrontEndAvailable())) {
    // Asking for windows where none can open falls back to the terminal instead of failing.
    kind = terminalOrBatch();
    std::fprintf(stderr, "plovix: %s\n",
                 questions::qtFrontEndUnavailable(kind == FrontEndKind::kConsole).c_str());
  }
#ifdef PLOVIX_HAVE_QT
  if (kind == FrontEndKind::kQt) return makeQtFrontEnd(options);
#endif
  if (kind == FrontEndKind::kConsole) return std::make_unique<ConsoleFrontEnd>(options);
  return std::make_unique<BatchFrontEnd>(options);
}

}  // namespace plovix
