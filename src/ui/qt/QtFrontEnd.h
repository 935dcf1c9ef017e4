// The Qt front end: message boxes, the three modal pages and the event pump while a plug-in runs.
#pragma once

#include <QApplication>
#include <memory>

#include "ui/FrontEnd.h"
#include "ui/FrontEndFactory.h"

namespace plovix {

class QtFrontEnd : public FrontEnd {
 public:
  // Uses the process's application object, or makes one for as long as the front end lives.
  explicit QtFrontEnd(FrontEndOptions options);
  ~QtFrontEnd() override;

  void report(const std::string& text) override;
  bool ask(const std::string& text) override;
  bool processEvents() override;
  void showSummary(const RunOutcome& outcome) override;

  PageResult showActionPage(ActionPage& page, PageContext& context) override;
  PageResult showModulonPage(ModulonSelectionPage& page, PageContext& context) override;
  PageResult showBrowserPage(VariationBrowserPage& page, PageContext& context) override;

 private:
  FrontEndOptions options_;
  int argc_ = 1;
  char programName_[7] = "plovix";
  char* argv_[2] = {programName_, nullptr};
  std::unique_ptr<QApplication> ownApplication_;
  bool quitRequested_ = false;
  QMetaObject::Connection quitConnection_;
};

}  // namespace plovix
