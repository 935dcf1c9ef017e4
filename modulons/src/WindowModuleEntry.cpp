// The one function the window dialog's module exports (see WindowModule.h).
#include <cstring>

#include "InstallLayout.h"
#include "WindowDialog.h"
#include "WindowModule.h"

extern "C" __attribute__((visibility("default"))) plovix::wizard::ValueDialog* plovix_wizard_window_dialog(
    const char* version) {
  if (version == nullptr || std::strcmp(version, PLOVIX_VERSION_TEXT) != 0) return nullptr;
  return plovix::wizard::makeWindowDialog().release();
}
