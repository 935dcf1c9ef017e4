// The entry into the optional Qt front end; built only when Qt 6 Widgets was found (PLOVIX_HAVE_QT).
#pragma once

#include <memory>

#include "ui/FrontEndFactory.h"

namespace plovix {

#ifdef PLOVIX_HAVE_QT
std::unique_ptr<FrontEnd> makeQtFrontEnd(const FrontEndOptions& options);
#endif

}  // namespace plovix
