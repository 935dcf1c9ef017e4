// The Qt page frame's geometry, buttons and closing.
#include "ui/qt/QtPageDialog.h"

#include <QFrame>
#include <QGuiApplication>
#include <QScreen>

namespace plovix {

QtPageDialog::QtPageDialog(WizardPageFrame& frame, PageContext& context, QSize templateSize)
    : frame_(frame), context_(context), templateSize_(templateSize) {
  setModal(true);
  setSizeGripEnabled(false);
}

// The window's rectangle is its client area on the screen: placing and storing use the same rectangle, so
// pages do not drift by the width of the window manager's decorations.
std::optional<PixelRect> QtPageDialog::windowRect() const {
  const QRect r = geometry();
  return PixelRect{r.x(), r.y(), r.x() + r.width(), r.y() + r.height()};
}

void QtPageDialog::addFrameControls() {
  for (const FrameControl& control : frame_.frameControls(width(), height())) {
    const QRect rect(control.rect.left, control.rect.top, control.rect.width(), control.rect.height());
    if (control.id == kControlSeparator) {
      auto* separator = new QFrame(this);
      separator->setObjectName("separator");
      separator->setFrameShape(QFrame::NoFrame);
      separator->setAutoFillBackground(true);
      separator->setStyleSheet("background-color: black;");
      separator->setGeometry(rect);
      continue;
    }
    auto* button = new QPushButton(QString::fromStdString(control.text), this);
    button->setGeometry(rect);
    button->setFont(font());
    button->setAutoDefault(false);
    buttons_[control.id] = button;
    controls_[control.id] = button;
    switch (control.id) {
      case kControlNext:
        button->setObjectName("next");
        connect(button, &QPushButton::clicked, this, [this] { afterEvent(pressNext()); });
        break;
      case kControlBack:
        button->setObjectName("back");
        connect(button, &QPushButton::clicked, this, [this] { afterEvent(pressBack()); });
        break;
      case kControlFinish:
        button->setObjectName("finish");
        connect(button, &QPushButton::clicked, this, [this] {
          pullControls();
          afterEvent(frame_.pressFinish(context_, windowRect()));
        });
        break;
      default:
        button->setObjectName("cancel");
        connect(button, &QPushButton::clicked, this, [this] { reject(); });
        break;
    }
  }
}

void QtPageDialog::applyButtonStates() {
  for (const auto& [id, button] : buttons_) {
    button->setEnabled(frame_.isEnabled(id));
    button->setDefault(id == frame_.defaultButton());
  }
}

bool QtPageDialog::pressNext() {
  pullControls();
  return frame_.pressNext(context_, windowRect());
}

bool QtPageDialog::pressBack() {
  pullControls();
  return frame_.pressBack(context_, windowRect());
}

void QtPageDialog::afterEvent(bool closed) {
  if (closed) {
    accept();
    return;
  }
  pushControls();
  applyButtonStates();
  const auto it = controls_.find(frame_.focusControl);
  if (it != controls_.end()) it->second->setFocus();
  frame_.focusControl = 0;
}

void QtPageDialog::reject() {
  frame_.pressCancel();
  QDialog::reject();
}

PageResult QtPageDialog::run() {
  setWindowTitle(QString::fromStdString(frame_.windowTitle("")));
  const PixelRect grown = frame_.grow({0, 0, templateSize_.width(), templateSize_.height()});
  setFixedSize(grown.width(), grown.height());
  QRect screen(0, 0, 1024, 768);
  if (const QScreen* primary = QGuiApplication::primaryScreen()) screen = primary->geometry();
  const PixelRect placed = WizardPageFrame::placeWindow(
      context_.corner,
      {screen.left(), screen.top(), screen.left() + screen.width(), screen.top() + screen.height()}, grown);
  setGeometry(placed.left, placed.top, grown.width(), grown.height());
  addFrameControls();
  pushControls();
  applyButtonStates();
  const auto it = controls_.find(frame_.focusControl);
  if (it != controls_.end()) it->second->setFocus();
  frame_.focusControl = 0;
  exec();
  return frame_.result;
}

}  // namespace plovix
