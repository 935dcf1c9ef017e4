// The modal-dialog driver of the Qt tests.
#include "ModalDriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

namespace plovix::testing {

namespace {
constexpr int kTickMs = 20;
constexpr int kGiveUpTicks = 500;  // ten seconds without progress
}  // namespace

ModalDriver::ModalDriver() {
  QObject::connect(&timer_, &QTimer::timeout, [this] { tick(); });
  timer_.start(kTickMs);
}

ModalDriver::~ModalDriver() {
  timer_.stop();
}

ModalDriver& ModalDriver::on(const QString& objectName, Action action, const QString& screenshotName) {
  steps_.push_back({objectName, std::move(action), screenshotName});
  return *this;
}

QStringList ModalDriver::pending() const {
  QStringList names;
  for (const Step& step : steps_) names << step.objectName;
  return names;
}

void ModalDriver::tick() {
  if (busy_) return;
  QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr || !modal->isVisible()) return;
  auto* box = qobject_cast<QMessageBox*>(modal);
  if (box != nullptr && answerOtherBoxes_ &&
      (steps_.empty() || steps_.front().objectName != box->objectName())) {
    otherBoxes << box->text();
    busy_ = true;
    QTimer::singleShot(0, box, [this, box] {
      busy_ = false;
      answerBox(box, true);
    });
    return;
  }
  if (steps_.empty() || modal->objectName() != steps_.front().objectName) {
    if (++idleTicks_ > kGiveUpTicks) {
      // Nothing expected is coming: close what is open so that the test ends and reports the rest.
      idleTicks_ = 0;
      modal->close();
    }
    return;
  }
  idleTicks_ = 0;
  Step step = std::move(steps_.front());
  steps_.pop_front();
  seen << modal->objectName();
  const QByteArray directory = qgetenv("PLOVIX_SCREENSHOT_DIR");
  if (!directory.isEmpty() && !step.screenshotName.isEmpty()) {
    QDir().mkpath(QString::fromLocal8Bit(directory));
    modal->grab().save(QString::fromLocal8Bit(directory) + "/" + step.screenshotName + ".png");
  }
  // The action runs from its own timer so that a dialog it opens can be driven by the next tick.
  busy_ = true;
  QTimer::singleShot(0, modal, [this, modal, action = std::move(step.action)] {
    busy_ = false;
    action(modal);
  });
}

void clickChild(QWidget* parent, const char* objectName) {
  auto* button = parent->findChild<QAbstractButton*>(objectName);
  QVERIFY2(button != nullptr, objectName);
  QTest::mouseClick(button, Qt::LeftButton);
}

void answerBox(QWidget* box, bool ok) {
  auto* messageBox = qobject_cast<QMessageBox*>(box);
  QVERIFY(messageBox != nullptr);
  QTest::mouseClick(messageBox->button(ok ? QMessageBox::Ok : QMessageBox::Cancel), Qt::LeftButton);
}

void typeInto(QWidget* parent, const char* objectName, const QString& text) {
  auto* edit = parent->findChild<QLineEdit*>(objectName);
  QVERIFY2(edit != nullptr, objectName);
  edit->setFocus();
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClicks(edit, text);
}

}  // namespace plovix::testing
