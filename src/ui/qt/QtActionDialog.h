// The action page in Qt: the picture, the two texts, the Create and Edit buttons and the maker's notice.
#pragma once

#include <QRadioButton>

#include "pages/ActionPage.h"
#include "ui/qt/QtPageDialog.h"

namespace plovix {

class QtActionDialog : public QtPageDialog {
 public:
  QtActionDialog(ActionPage& page, PageContext& context);

 protected:
  void pullControls() override;
  void pushControls() override;

 private:
  ActionPage& page_;
  QRadioButton* create_;
  QRadioButton* edit_;
};

}  // namespace plovix
