// A user interface that shows both the message boxes and the pages: batch, console or Qt.
#pragma once

#include "base/RunOutcome.h"
#include "base/UserInterface.h"
#include "pages/PageHost.h"

namespace plovix {

class FrontEnd : public UserInterface, public PageHost {
 public:
  // Called by the plovix command once its run has ended (a host of libvamlet.so never calls it): a short
  // account of the files written and the warnings, nothing when nothing was generated.
  virtual void showSummary(const RunOutcome&) {}
};

}  // namespace plovix
