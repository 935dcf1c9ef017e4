// The window dialog lives in a module (plovix-wizard-window.so) that the plug-in loads with dlopen only when
// a display is there, so that the plug-in without a display never loads Qt.
//
// The module exports one C function, named kWindowDialogEntry, of type WindowDialogEntry: given the plug-in's
// version it returns a new dialog the caller owns, or null for a module of another version (it is built from
// the same sources and works on the plug-in's modulon objects). The module is never unloaded.
#pragma once

#include <memory>

#include "WizardRun.h"

namespace plovix::wizard {

inline constexpr const char* kWindowDialogEntry = "plovix_wizard_window_dialog";

extern "C" {
using WindowDialogEntry = ValueDialog* (*)(const char* version);
}

// The window dialog from the module beside the install (or in the build tree); null when there is none or it
// cannot be loaded.
std::unique_ptr<ValueDialog> loadWindowDialog();

}  // namespace plovix::wizard
