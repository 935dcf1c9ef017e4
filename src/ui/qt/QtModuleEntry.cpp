// The one function the Qt front-end module exports (see ui/QtModule.h).
#include <cstring>

#include "InstallLayout.h"
#include "ui/QtModule.h"
#include "ui/qt/QtFrontEnd.h"

extern "C" __attribute__((visibility("default"))) plovix::FrontEnd* plovix_qt_front_end(
    const char* version, const plovix::FrontEndOptions* options) {
  if (version == nullptr || options == nullptr || std::strcmp(version, PLOVIX_VERSION_TEXT) != 0)
    return nullptr;
  return std::make_unique<plovix::QtFrontEnd>(*options).release();
}
