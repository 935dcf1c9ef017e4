// The Qt page frame: a modal dialog that grows, places itself, adds the four buttons and the separator, and
// forwards the buttons, Enter and Escape to the page logic.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <map>

#include "pages/PageHost.h"

namespace plovix {

class QtPageDialog : public QDialog {
 public:
  // `templateSize` is the page's own size, before the frame grows it.
  QtPageDialog(WizardPageFrame& frame, PageContext& context, QSize templateSize);

  // Titles, grows and places the dialog, adds the buttons, and runs it modally; gives the page's result.
  PageResult run();

  // Names a control so that checks can give it the focus.
  void registerControl(int id, QWidget* widget) { controls_[id] = widget; }

 protected:
  // Copies the widgets' state into the page before a button acts; refreshes the widgets afterwards.
  virtual void pullControls() {}
  virtual void pushControls() {}

  // The frame's buttons: each gives true when the page closed.
  virtual bool pressNext();
  virtual bool pressBack();

  // After an event: the widgets follow the page, the focus goes where a check put it, and the dialog
  // closes when the page did.
  void afterEvent(bool closed);
  std::optional<PixelRect> windowRect() const;

  void reject() override;

  WizardPageFrame& frame_;
  PageContext& context_;

 private:
  void addFrameControls();
  void applyButtonStates();

  QSize templateSize_;
  std::map<int, QWidget*> controls_;
  std::map<int, QPushButton*> buttons_;
};

}  // namespace plovix
