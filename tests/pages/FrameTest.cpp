// Tests of the page frame: title, growing, placement, the button row and what the buttons leave behind.
#include <gtest/gtest.h>

#include "RecordingInterface.h"
#include "catalog/WizardCatalog.h"
#include "pages/ActionPage.h"
#include "pages/PageHost.h"

namespace plovix {
namespace {

using testing::RecordingInterface;

// A page whose check can be switched off.
class CheckedPage : public WizardPageFrame {
 public:
  bool accept = true;

 protected:
  bool validatePage(PageContext&) override { return accept; }
};

struct FrameFixture : ::testing::Test {
  RecordingInterface ui;
  WizardCatalog catalog;
  WindowCorner corner;
  PageContext context{ui, catalog, corner, "/", ""};
  const PixelRect screen{0, 0, 1024, 768};
};

TEST_F(FrameFixture, TitleJoinsCaptionAndTemplateTitle) {
  WizardPageFrame frame;
  frame.setCaption("Plovix Plug-In Manager [page 1]");
  EXPECT_EQ(frame.windowTitle(""), "Plovix Plug-In Manager [page 1]");
  EXPECT_EQ(frame.windowTitle("Page"), "Plovix Plug-In Manager [page 1] -- Page");
}

TEST_F(FrameFixture, NarrowTemplateGrowsAndItsSeparatorStartsAtTheButtons) {
  WizardPageFrame frame;
  const PixelRect grown = frame.grow({10, 20, 210, 120});
  EXPECT_EQ(grown, (PixelRect{10, 20, 279, 163}));
  EXPECT_EQ(frame.ungrownWidth, 200);
  const std::vector<FrameControl> controls = frame.frameControls(269, 143);
  ASSERT_EQ(controls.size(), 5u);
  EXPECT_EQ(controls[0].id, kControlNext);
  EXPECT_EQ(controls[0].text, "&Next >");
  EXPECT_EQ(controls[0].rect, (PixelRect{136, 110, 196, 133}));
  EXPECT_EQ(controls[1].id, kControlBack);
  EXPECT_EQ(controls[1].rect, (PixelRect{73, 110, 133, 133}));
  EXPECT_EQ(controls[2].id, kControlCancel);
  EXPECT_EQ(controls[2].rect, (PixelRect{10, 110, 70, 133}));
  EXPECT_EQ(controls[3].id, kControlFinish);
  EXPECT_EQ(controls[3].text, "&Finish");
  EXPECT_EQ(controls[3].rect, (PixelRect{199, 110, 259, 133}));
  EXPECT_EQ(controls[4].id, kControlSeparator);
  EXPECT_EQ(controls[4].rect, (PixelRect{10, 100, 259, 102}));
}

TEST_F(FrameFixture, WideTemplateKeepsItsWidthAndItsSeparatorStartsInsideTheLeftEdge) {
  WizardPageFrame frame;
  EXPECT_EQ(frame.grow({0, 0, 320, 200}), (PixelRect{0, 0, 320, 243}));
  EXPECT_EQ(frame.frameControls(320, 243)[4].rect, (PixelRect{10, 200, 310, 202}));
}

TEST_F(FrameFixture, FirstPageIsCentredAndMakesTheCornerKnown) {
  const PixelRect placed = WizardPageFrame::placeWindow(corner, {0, 0, 1025, 769}, {0, 0, 301, 201});
  EXPECT_EQ(placed, (PixelRect{362, 284, 663, 485}));
  EXPECT_TRUE(corner.known);
  EXPECT_EQ(corner.right, 662);
  EXPECT_EQ(corner.bottom, 484);
}

TEST_F(FrameFixture, KnownCornerKeepsTheBottomRightAndStaysOnTheScreen) {
  corner = {700, 600, true};
  EXPECT_EQ(WizardPageFrame::placeWindow(corner, screen, {0, 0, 300, 200}), (PixelRect{400, 400, 700, 600}));
  corner = {5000, 5000, true};
  EXPECT_EQ(WizardPageFrame::placeWindow(corner, screen, {0, 0, 300, 200}), (PixelRect{724, 568, 1024, 768}));
  corner = {100, 50, true};
  EXPECT_EQ(WizardPageFrame::placeWindow(corner, screen, {0, 0, 300, 200}), (PixelRect{0, 0, 300, 200}));
  EXPECT_EQ(corner.right, 100);  // placing never moves the corner
}

TEST_F(FrameFixture, NextAndBackStoreThePositionAndCancelDoesNot) {
  WizardPageFrame frame;
  EXPECT_TRUE(frame.pressNext(context, PixelRect{10, 10, 310, 250}));
  EXPECT_EQ(frame.result, PageResult::kNext);
  EXPECT_EQ(corner.right, 310);
  EXPECT_EQ(corner.bottom, 250);
  EXPECT_TRUE(frame.pressBack(context, PixelRect{0, 0, 200, 100}));
  EXPECT_EQ(frame.result, PageResult::kBack);
  EXPECT_EQ(corner.right, 200);
  frame.pressCancel();
  EXPECT_EQ(frame.result, PageResult::kCancel);
  EXPECT_EQ(corner.right, 200);
  EXPECT_TRUE(frame.pressFinish(context, std::nullopt));
  EXPECT_EQ(frame.result, PageResult::kFinish);
}

TEST_F(FrameFixture, FailedCheckKeepsThePageOpenAndTheResultUnchanged) {
  CheckedPage page;
  page.accept = false;
  page.result = PageResult::kBack;
  EXPECT_FALSE(page.pressNext(context, PixelRect{0, 0, 400, 300}));
  EXPECT_EQ(page.result, PageResult::kBack);
  EXPECT_EQ(corner.right, 400);  // the position is stored before the check
}

TEST_F(FrameFixture, PageKindDecidesTheDisabledButtonAndTheDefault) {
  WizardPageFrame frame;
  frame.pageKind = PageKind::kFirst;
  frame.openFrame();
  EXPECT_FALSE(frame.isEnabled(kControlBack));
  EXPECT_TRUE(frame.isEnabled(kControlNext));
  EXPECT_EQ(frame.defaultButton(), kControlNext);
  frame.pageKind = PageKind::kLast;
  frame.openFrame();
  EXPECT_TRUE(frame.isEnabled(kControlBack));
  EXPECT_FALSE(frame.isEnabled(kControlNext));
  EXPECT_EQ(frame.defaultButton(), kControlFinish);
}

TEST_F(FrameFixture, ActionPageTakesTheCreateButtonOnNextOnly) {
  ActionPage page;
  page.pageKind = PageKind::kFirst;
  page.createNew = false;
  page.open();
  EXPECT_FALSE(page.createChecked);
  EXPECT_FALSE(page.isEnabled(kControlBack));
  EXPECT_FALSE(page.isEnabled(kControlFinish));
  page.createChecked = true;
  page.pressCancel();
  EXPECT_FALSE(page.createNew);
  page.open();
  page.createChecked = true;
  EXPECT_TRUE(page.pressNext(context, std::nullopt));
  EXPECT_TRUE(page.createNew);
}

}  // namespace
}  // namespace plovix
