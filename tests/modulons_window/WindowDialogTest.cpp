// The plug-in's window: its fields preset from the values, Finish, Back and Cancel, the check across values,
// and the corner reported to the manager.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <cstddef>
#include <cstring>
#include <functional>

#include "ModulonLibrary.h"
#include "PositionChannel.h"
#include "WindowDialog.h"
#include "plovix_position.h"

namespace plovix::wizard {
namespace {

class WindowDialogTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "test";
    static char* argv[] = {name, nullptr};
    static QApplication application(argc, argv);
  }

  // Runs the dialog; act is called once it is shown, with the dialog as the active modal window.
  DialogOutcome show(const Modulon& modulon, SettingValues& values, std::function<void(QWidget&)> act,
                     PluginArguments arguments = {}) {
    arguments.outputPath = "/p/x.v";
    QTimer::singleShot(0, [act] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog != nullptr) act(*dialog);
    });
    return makeWindowDialog()->collect(modulon, arguments, values);
  }

  static void click(QWidget& dialog, const QString& text) {
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
      if (QString(button->text()).remove('&') == text) {
        button->click();
        return;
      }
    }
    ADD_FAILURE() << "no button " << text.toStdString();
    dialog.close();
  }
};

TEST_F(WindowDialogTest, FinishTakesTheFieldsAndBackAndCancelKeepTheValues) {
  const Modulon counter = counterModulon();
  SettingValues values = counter.defaultValues();
  values["LPM_WIDTH"] = "6";
  values["LPM_DIRECTION"] = "DOWN";
  EXPECT_EQ(show(counter, values,
                 [](QWidget& dialog) {
                   const auto spins = dialog.findChildren<QSpinBox*>();
                   const auto combos = dialog.findChildren<QComboBox*>();
                   ASSERT_EQ(spins.size(), 2);
                   EXPECT_EQ(spins[0]->value(), 6);
                   EXPECT_EQ(combos[0]->currentText(), "DOWN");
                   spins[0]->setValue(12);
                   combos[0]->setCurrentText("UNUSED");
                   click(dialog, "Finish");
                 }),
            DialogOutcome::kFinish);
  EXPECT_EQ(values["LPM_WIDTH"], "12");
  EXPECT_EQ(values["LPM_DIRECTION"], "UNUSED");

  EXPECT_EQ(show(counter, values,
                 [](QWidget& dialog) {
                   dialog.findChildren<QSpinBox*>()[0]->setValue(3);
                   click(dialog, "< Back");
                 }),
            DialogOutcome::kBack);
  EXPECT_EQ(show(counter, values, [](QWidget& dialog) { click(dialog, "Cancel"); }), DialogOutcome::kCancel);
  EXPECT_EQ(values["LPM_WIDTH"], "12");
}

TEST_F(WindowDialogTest, ValuesThatDoNotFitKeepTheWindowOpen) {
  const Modulon decode = decodeModulon();
  SettingValues values = decode.defaultValues();
  bool warned = false;
  EXPECT_EQ(show(decode, values,
                 [&warned](QWidget& dialog) {
                   dialog.findChildren<QSpinBox*>()[0]->setValue(1);  // 8 outputs need 3 bits
                   QTimer::singleShot(0, [&warned, &dialog] {
                     auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                     warned = box != nullptr && box->text().contains("does not fit");
                     if (box != nullptr) box->accept();
                     dialog.findChildren<QSpinBox*>()[0]->setValue(3);
                     click(dialog, "Finish");
                   });
                   click(dialog, "Finish");
                 }),
            DialogOutcome::kFinish);
  EXPECT_TRUE(warned);
  EXPECT_EQ(values["LPM_WIDTH"], "3");
}

TEST_F(WindowDialogTest, PlacedAtTheManagersCornerAndReportsItsOwn) {
  const long long id = 800000 + getpid();
  const std::string name = positionSocketName(id);
  const int fd = socket(AF_UNIX, SOCK_DGRAM, 0);
  ASSERT_GE(fd, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path + 1, name.data(), name.size());
  ASSERT_EQ(bind(fd, reinterpret_cast<sockaddr*>(&address),
                 static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size())),
            0);
  PluginArguments arguments;
  arguments.windowOptions = true;
  arguments.windowRight = 900;
  arguments.windowBottom = 700;
  arguments.managerThread = id;
  const Modulon ram = ramModulon();
  SettingValues values = ram.defaultValues();
  show(
      ram, values, [](QWidget& dialog) { click(dialog, "Finish"); }, arguments);
  char buffer[64] = {};
  const ssize_t got = recv(fd, buffer, sizeof(buffer) - 1, MSG_DONTWAIT);
  close(fd);
  EXPECT_EQ(parsePositionReport(std::string_view(buffer, got > 0 ? got : 0)), (PositionReport{900, 700}));
}

}  // namespace
}  // namespace plovix::wizard
