// Page 1: create a new custom variation or edit an existing one.
#pragma once

#include <string>

#include "pages/WizardPageFrame.h"

namespace plovix {

class ActionPage : public WizardPageFrame {
 public:
  bool createNew = true;
  std::string notice;  // the maker's one-line notice
};

}  // namespace plovix
