// A user interface that shows both the message boxes and the pages: batch, console or Qt.
#pragma once

#include "base/UserInterface.h"
#include "pages/PageHost.h"

namespace plovix {

class FrontEnd : public UserInterface, public PageHost {};

}  // namespace plovix
