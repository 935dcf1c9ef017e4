// Implementation of the front-end choice.
#include "ui/FrontEndFactory.h"

#include <unistd.h>

#include "base/FileSystem.h"
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

std::unique_ptr<FrontEnd> makeFrontEnd(const FrontEndOptions& options) {
  FrontEndKind kind = options.kind;
  if (kind == FrontEndKind::kAutomatic) {
    const bool display =
        !environmentVariable("DISPLAY").empty() || !environmentVariable("WAYLAND_DISPLAY").empty();
    if (display && qtFrontEndAvailable()) {
      kind = FrontEndKind::kQt;
    } else if (isatty(STDIN_FILENO)) {
      kind = FrontEndKind::kConsole;
    } else {
      kind = FrontEndKind::kBatch;
    }
  }
#ifdef PLOVIX_HAVE_QT
  if (kind == FrontEndKind::kQt) return makeQtFrontEnd(options);
#endif
  if (kind == FrontEndKind::kConsole) return std::make_unique<ConsoleFrontEnd>(options);
  return std::make_unique<BatchFrontEnd>(options);
}

}  // namespace plovix
