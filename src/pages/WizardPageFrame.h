// The frame every wizard page shares: title, growing and placing the window, the four buttons and their
// results.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/WindowCorner.h"
#include "pages/PageControls.h"
#include "pages/PageResult.h"

namespace plovix {

struct PageContext;

// A rectangle in pixels; right and bottom are the first pixels outside it.
struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  int width() const { return right - left; }
  int height() const { return bottom - top; }
  bool operator==(const PixelRect&) const = default;
};

// One of the controls the frame adds to a page, in page (client) coordinates.
struct FrameControl {
  int id = 0;
  std::string text;  // empty for the separator
  PixelRect rect;
};

// Page kinds the run sets before showing a page. The first page has no Back, the last no Next; the value a
// page starts with changes nothing.
enum class PageKind : int { kFirst = 0, kNotSet = 1, kMiddle = 2, kLast = 3 };

class WizardPageFrame {
 public:
  // The smallest width of a grown page and the height the button row adds.
  static constexpr int kMinimumWidth = 269;
  static constexpr int kButtonRowHeight = 43;

  virtual ~WizardPageFrame() = default;

  void setCaption(const std::string& text) { caption = text; }

  // The window title: the caption, followed by " -- " and the template's own title when it has one.
  std::string windowTitle(const std::string& templateTitle) const;

  // Remembers the ungrown width and gives the grown size: at least kMinimumWidth wide, kButtonRowHeight
  // higher.
  PixelRect grow(const PixelRect& window);

  // The window moved to where the previous page or plug-in window was (or centred on the screen the first
  // time, which makes the corner known). The size is unchanged.
  static PixelRect placeWindow(WindowCorner& corner, const PixelRect& screen, const PixelRect& window);

  // The buttons and the separator for a window whose right and bottom edges are at `right` and `bottom`
  // in page coordinates, in creation (and tab) order: Next, Back, Cancel, Finish, separator.
  std::vector<FrameControl> frameControls(int right, int bottom) const;

  // The frame's part of opening: every control enabled again, then Back or Next disabled by the page kind,
  // and the default button chosen.
  void openFrame();

  bool isEnabled(int controlId) const { return disabled_.count(controlId) == 0; }
  void enableControl(int controlId, bool enable);
  void setDefaultButton(int controlId) { defaultButton_ = controlId; }
  int defaultButton() const { return defaultButton_; }

  // The frame's buttons. `window` is the window's screen rectangle when the page is on a screen; without
  // one, no position is stored. Each gives true when the page closed.
  virtual bool pressBack(PageContext& context, const std::optional<PixelRect>& window);
  virtual bool pressNext(PageContext& context, const std::optional<PixelRect>& window);
  bool pressFinish(PageContext& context, const std::optional<PixelRect>& window);
  // Cancel, Escape and the close box: the position is not stored.
  virtual void pressCancel();

  PageKind pageKind = PageKind::kNotSet;
  PageResult result = PageResult::kNext;
  std::string caption;
  int ungrownWidth = 0;
  // The control a check wants the focus on after an event; 0 leaves the focus where it is.
  int focusControl = 0;

 protected:
  // Records the window's bottom-right corner; gives true to go on.
  virtual bool storePosition(WindowCorner& corner, const std::optional<PixelRect>& window);
  // The page's check of its input; false keeps the page open.
  virtual bool validatePage(PageContext&) { return true; }
  // Stores the position, validates and closes with `pageResult`.
  bool acceptWith(PageResult pageResult, PageContext& context, const std::optional<PixelRect>& window);

 private:
  std::set<int> disabled_;
  int defaultButton_ = kControlNext;
};

}  // namespace plovix
