// The window dialog: one field per setting, Back, Finish and Cancel; placed at the manager's window corner
// and reporting its own corner back when it closes.
#include "WindowDialog.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QVBoxLayout>
#include <functional>
#include <memory>
#include <vector>

#include "PluginMessages.h"
#include "PositionChannel.h"

namespace plovix::wizard {

namespace {

class WindowDialog : public ValueDialog {
 public:
  DialogOutcome collect(const Modulon& modulon, const PluginArguments& arguments,
                        SettingValues& values) override;
};

// One field: shows a setting's value and reads it back.
struct Field {
  std::string name;
  std::function<std::string()> read;
};

Field addField(QFormLayout& form, const Setting& setting, const std::string& current) {
  if (setting.isNumber()) {
    auto* box = new QSpinBox;
    box->setRange(static_cast<int>(setting.minimum), static_cast<int>(setting.maximum));
    box->setValue(std::stoi(current));
    box->setToolTip(QString::fromStdString(allowedValuesText(setting)));
    form.addRow(QString::fromStdString(setting.question), box);
    return {setting.name, [box] { return std::to_string(box->value()); }};
  }
  if (setting.kind == SettingKind::kText) {
    auto* line = new QLineEdit(QString::fromStdString(current));
    line->setToolTip(QString::fromStdString(allowedValuesText(setting)));
    form.addRow(QString::fromStdString(setting.question), line);
    return {setting.name, [line] { return line->text().toStdString(); }};
  }
  auto* box = new QComboBox;
  for (const std::string& choice : setting.choices) box->addItem(QString::fromStdString(choice));
  box->setCurrentText(QString::fromStdString(current));
  form.addRow(QString::fromStdString(setting.question), box);
  return {setting.name, [box] { return box->currentText().toStdString(); }};
}

// Puts the window's bottom-right corner where the manager's last window had it.
void placeAt(QDialog& dialog, const PluginArguments& arguments) {
  dialog.adjustSize();
  if (!arguments.windowOptions || arguments.windowRight <= 0 || arguments.windowBottom <= 0) return;
  const QSize size = dialog.frameGeometry().size();
  dialog.move(static_cast<int>(arguments.windowRight) - size.width(),
              static_cast<int>(arguments.windowBottom) - size.height());
}

DialogOutcome WindowDialog::collect(const Modulon& modulon, const PluginArguments& arguments,
                                    SettingValues& values) {
  // The plug-in makes its own application; a host that already has one (a test) keeps it.
  int argc = 1;
  char name[] = "plovix-wizard";
  char* argv[] = {name, nullptr};
  std::unique_ptr<QApplication> application;
  if (QApplication::instance() == nullptr) application = std::make_unique<QApplication>(argc, argv);

  QDialog dialog;
  dialog.setWindowTitle(QString::fromStdString(dialogTitleText(modulon.name, modulon.title)));
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(new QLabel(QString::fromStdString(arguments.outputPath)));
  auto* form = new QFormLayout;
  layout->addLayout(form);
  std::vector<Field> fields;
  for (const Setting& setting : modulon.settings)
    fields.push_back(addField(*form, setting, values[setting.name]));

  auto* buttons = new QDialogButtonBox;
  QPushButton* back = buttons->addButton(QStringLiteral("< Back"), QDialogButtonBox::ActionRole);
  QPushButton* finish = buttons->addButton(QStringLiteral("Finish"), QDialogButtonBox::AcceptRole);
  QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
  layout->addWidget(buttons);

  DialogOutcome outcome = DialogOutcome::kCancel;
  QObject::connect(back, &QPushButton::clicked, &dialog, [&] {
    outcome = DialogOutcome::kBack;
    dialog.done(QDialog::Rejected);
  });
  QObject::connect(cancel, &QPushButton::clicked, &dialog, [&] {
    outcome = DialogOutcome::kCancel;
    dialog.done(QDialog::Rejected);
  });
  QObject::connect(finish, &QPushButton::clicked, &dialog, [&] {
    SettingValues chosen = values;
    std::optional<std::string> conflict;
    for (const Field& field : fields) {
      const std::string text = field.read();
      const Setting* setting = modulon.findSetting(field.name);
      // Spin boxes and lists give only allowed values; a text field may hold what a description cannot.
      if (!conflict && setting != nullptr && !acceptValue(*setting, text))
        conflict = badValueText(field.name, text, allowedValuesText(*setting));
      chosen[field.name] = text;
    }
    if (!conflict) conflict = modulon.check(chosen);
    if (conflict) {
      QMessageBox::warning(&dialog, dialog.windowTitle(), QString::fromStdString(*conflict));
      return;
    }
    values = chosen;
    outcome = DialogOutcome::kFinish;
    dialog.done(QDialog::Accepted);
  });

  // Shown first, so that the frame around the window is known when it is placed.
  dialog.setModal(true);
  dialog.show();
  placeAt(dialog, arguments);
  dialog.exec();
  if (arguments.managerThread != 0) {
    const QRect frame = dialog.frameGeometry();
    reportWindowCorner(arguments.managerThread, frame.x() + frame.width(), frame.y() + frame.height());
  }
  return outcome;
}

}  // namespace

std::unique_ptr<ValueDialog> makeWindowDialog() {
  return std::make_unique<WindowDialog>();
}

}  // namespace plovix::wizard
