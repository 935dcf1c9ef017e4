// The frame's title, geometry, button states and results.
#include "pages/WizardPageFrame.h"

#include <algorithm>

#include "pages/PageHost.h"
#include "pages/PageTexts.h"

namespace plovix {

std::string WizardPageFrame::windowTitle(const std::string& templateTitle) const {
  if (templateTitle.empty()) return caption;
  return caption + " -- " + templateTitle;
}

PixelRect WizardPageFrame::grow(const PixelRect& window) {
  ungrownWidth = window.width();
  PixelRect grown = window;
  grown.right = window.left + std::max(window.width(), kMinimumWidth);
  grown.bottom = window.bottom + kButtonRowHeight;
  return grown;
}

PixelRect WizardPageFrame::placeWindow(WindowCorner& corner, const PixelRect& screen,
                                       const PixelRect& window) {
  const int width = window.width();
  const int height = window.height();
  PixelRect placed;
  if (!corner.known) {
    const int centreX = (screen.left + screen.right) / 2;
    const int centreY = (screen.top + screen.bottom) / 2;
    corner.right = centreX + width / 2;
    corner.bottom = centreY + height / 2;
    corner.known = true;
    placed.left = centreX - width / 2;
    placed.top = centreY - height / 2;
  } else {
    placed.left = corner.right - width;
    placed.top = corner.bottom - height;
    if (placed.top < screen.top) {
      placed.top = screen.top;
    } else if (placed.top + height > screen.bottom) {
      placed.top = screen.bottom - height;
    }
    if (placed.left < screen.left) {
      placed.left = screen.left;
    } else if (placed.left + width > screen.right) {
      placed.left = screen.right - width;
    }
  }
  placed.right = placed.left + width;
  placed.bottom = placed.top + height;
  return placed;
}

std::vector<FrameControl> WizardPageFrame::frameControls(int right, int bottom) const {
  const int top = bottom - 33;
  const int low = bottom - 10;
  const int separatorLeft = ungrownWidth > kMinimumWidth ? right - ungrownWidth + 10 : right - 259;
  return {
      {kControlNext, std::string(pagetexts::kNext), {right - 133, top, right - 73, low}},
      {kControlBack, std::string(pagetexts::kBack), {right - 196, top, right - 136, low}},
      {kControlCancel, std::string(pagetexts::kCancel), {right - 259, top, right - 199, low}},
      {kControlFinish, std::string(pagetexts::kFinish), {right - 70, top, right - 10, low}},
      {kControlSeparator, std::string(), {separatorLeft, bottom - 43, right - 10, bottom - 41}},
  };
}

void WizardPageFrame::openFrame() {
  disabled_.clear();
  defaultButton_ = kControlNext;
  focusControl = 0;
  if (pageKind == PageKind::kFirst) {
    enableControl(kControlBack, false);
    setDefaultButton(kControlNext);
  } else if (pageKind == PageKind::kLast) {
    enableControl(kControlNext, false);
    setDefaultButton(kControlFinish);
  }
}

void WizardPageFrame::enableControl(int controlId, bool enable) {
  if (enable) {
    disabled_.erase(controlId);
  } else {
    disabled_.insert(controlId);
  }
}

bool WizardPageFrame::storePosition(WindowCorner& corner, const std::optional<PixelRect>& window) {
  if (window) {
    corner.right = window->right;
    corner.bottom = window->bottom;
  }
  return true;
}

bool WizardPageFrame::acceptWith(PageResult pageResult, PageContext& context,
                                 const std::optional<PixelRect>& window) {
  if (!storePosition(context.corner, window) || !validatePage(context)) return false;
  result = pageResult;
  return true;
}

bool WizardPageFrame::pressBack(PageContext& context, const std::optional<PixelRect>& window) {
  return acceptWith(PageResult::kBack, context, window);
}

bool WizardPageFrame::pressNext(PageContext& context, const std::optional<PixelRect>& window) {
  return acceptWith(PageResult::kNext, context, window);
}

bool WizardPageFrame::pressFinish(PageContext& context, const std::optional<PixelRect>& window) {
  return acceptWith(PageResult::kFinish, context, window);
}

void WizardPageFrame::pressCancel() {
  result = PageResult::kCancel;
}

}  // namespace plovix
