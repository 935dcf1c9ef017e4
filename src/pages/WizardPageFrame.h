// The frame every wizard page shares: its kind, caption and result.
#pragma once

#include <string>

#include "pages/PageResult.h"

namespace plovix {

class WizardPageFrame {
 public:
  virtual ~WizardPageFrame() = default;

  void setCaption(const std::string& text) { caption = text; }

  int pageKind = 1;  // 0 first page, 2 middle page, 3 last page
  int result = kPageNext;
  std::string caption;
};

}  // namespace plovix
