// Page 1: create a new custom variation or edit an existing one.
#pragma once

#include <string>

#include "pages/WizardPageFrame.h"

namespace plovix {

class ActionPage : public WizardPageFrame {
 public:
  // Opening: the frame's part (Back and Finish disabled, Next the default) and the radio buttons from
  // createNew.
  void open();

  // Next takes the Create button's state.
  bool pressNext(PageContext& context, const std::optional<PixelRect>& window) override;

  bool createNew = true;
  std::string notice;  // the maker's one-line notice

  // The state of the "Create" radio button while the page is shown; the "Edit" button shows the opposite.
  bool createChecked = true;
};

}  // namespace plovix
