// The boundary between the core and the Qt front end, which lives in a module (plovix-qt.so) loaded with
// dlopen only when the Qt interface is chosen, so that no other use of plovix loads Qt.
//
// The module exports one C function, named kQtFrontEndEntry, of type QtFrontEndEntry. It is given the core's
// version and the front-end options and returns a new front end that the caller owns (delete through
// FrontEnd's virtual destructor), or null when the versions differ: the module is built from the same sources
// as the core and works on the core's page objects, so only a module of the same build may be used. The
// module is never unloaded.
#pragma once

#include <memory>
#include <string>

#include "ui/FrontEnd.h"
#include "ui/FrontEndFactory.h"

namespace plovix {

inline constexpr const char* kQtFrontEndEntry = "plovix_qt_front_end";

extern "C" {
using QtFrontEndEntry = FrontEnd* (*)(const char* version, const FrontEndOptions* options);
}

// Whether a Qt module file lies where this install or build keeps it.
bool qtModuleInstalled();

// The outcome of loading the module: the front end, or why there is none. `detail` names the folders looked
// in when no module was found, the loader's reason when it could not be loaded, the module's file otherwise.
struct QtModuleLoad {
  enum class Failure { kNone, kNotInstalled, kCannotLoad, kOtherVersion };
  std::unique_ptr<FrontEnd> frontEnd;
  Failure failure = Failure::kNone;
  std::string detail;
};

// Loads the module and makes its front end.
QtModuleLoad loadQtFrontEnd(const FrontEndOptions& options);

}  // namespace plovix
