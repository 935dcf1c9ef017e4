// Drives modal dialogs in tests: each step waits for the active modal widget of a name and acts on it; a
// screenshot of every widget it meets is kept when PLOVIX_SCREENSHOT_DIR is set.
#pragma once

#include <QString>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>

namespace plovix::testing {

class ModalDriver {
 public:
  using Action = std::function<void(QWidget*)>;

  ModalDriver();
  ~ModalDriver();

  // Adds a step: when the active modal widget has `objectName`, `action` runs on it.
  ModalDriver& on(const QString& objectName, Action action, const QString& screenshotName = {});

  bool finished() const { return steps_.empty(); }
  // Message boxes that no step waits for are answered with OK and their texts kept in `otherBoxes`.
  void answerOtherBoxesWithOk() { answerOtherBoxes_ = true; }
  QStringList otherBoxes;
  // The names of the steps that were still waiting when the driver gave up, and every widget it met.
  QStringList pending() const;
  QStringList seen;

 private:
  struct Step {
    QString objectName;
    Action action;
    QString screenshotName;
  };
  void tick();

  std::deque<Step> steps_;
  QTimer timer_;
  int idleTicks_ = 0;
  bool busy_ = false;
  bool answerOtherBoxes_ = false;
};

// Clicks a push button, radio button or check box of a widget by its object name; fails the test when
// there is none.
void clickChild(QWidget* parent, const char* objectName);
// Clicks the OK or Cancel button of a message box.
void answerBox(QWidget* box, bool ok);
// Replaces the text of a line edit by typing.
void typeInto(QWidget* parent, const char* objectName, const QString& text);

}  // namespace plovix::testing
