// Opening the action page and taking its choice.
#include "pages/ActionPage.h"

namespace plovix {

void ActionPage::open() {
  openFrame();
  enableControl(kControlBack, false);
  enableControl(kControlFinish, false);
  setDefaultButton(kControlNext);
  createChecked = createNew;
}

bool ActionPage::pressNext(PageContext& context, const std::optional<PixelRect>& window) {
  if (!WizardPageFrame::pressNext(context, window)) return false;
  createNew = createChecked;
  return true;
}

}  // namespace plovix
