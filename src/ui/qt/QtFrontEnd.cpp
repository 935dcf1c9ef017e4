// The Qt front end's boxes, pages and event pump.
#include "ui/qt/QtFrontEnd.h"

#include <QMessageBox>

#include "base/Messages.h"
#include "base/QuestionTexts.h"
#include "ui/qt/QtActionDialog.h"
#include "ui/qt/QtBrowserDialog.h"
#include "ui/qt/QtModulonDialog.h"

namespace plovix {

QtFrontEnd::QtFrontEnd(FrontEndOptions options) : options_(std::move(options)) {
  if (QApplication::instance() == nullptr) ownApplication_ = std::make_unique<QApplication>(argc_, argv_);
  quitConnection_ = QObject::connect(qApp, &QCoreApplication::aboutToQuit, [this] { quitRequested_ = true; });
}

QtFrontEnd::~QtFrontEnd() {
  QObject::disconnect(quitConnection_);
}

namespace {

int showBox(const std::string& text, QMessageBox::StandardButtons buttons) {
  QMessageBox box(QMessageBox::Warning, QString::fromStdString(std::string(kManagerName)),
                  QString::fromStdString(text), buttons);
  box.setObjectName("messageBox");
  box.setTextFormat(Qt::PlainText);  // paths and names are shown as they are, never read as markup
  return box.exec();
}

}  // namespace

void QtFrontEnd::report(const std::string& text) {
  showBox(text, QMessageBox::Ok);
}

bool QtFrontEnd::ask(const std::string& text) {
  return showBox(text, QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
}

void QtFrontEnd::showSummary(const RunOutcome& outcome) {
  const std::string summary = questions::runSummary(outcome);
  if (summary.empty()) return;
  QMessageBox box(QMessageBox::Information, QString::fromStdString(std::string(kManagerName)),
                  QString::fromStdString(summary), QMessageBox::Ok);
  box.setObjectName("summaryBox");
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool QtFrontEnd::processEvents() {
  QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  return !quitRequested_;
}

PageResult QtFrontEnd::showActionPage(ActionPage& page, PageContext& context) {
  page.open();
  QtActionDialog dialog(page, context);
  return dialog.run();
}

PageResult QtFrontEnd::showModulonPage(ModulonSelectionPage& page, PageContext& context) {
  page.open(context);
  QtModulonDialog dialog(page, context);
  return dialog.run();
}

PageResult QtFrontEnd::showBrowserPage(VariationBrowserPage& page, PageContext& context) {
  page.open(context);
  QtBrowserDialog dialog(page, context);
  return dialog.run();
}

}  // namespace plovix
