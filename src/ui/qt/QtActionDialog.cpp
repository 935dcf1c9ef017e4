// Building the Qt action page.
#include "ui/qt/QtActionDialog.h"

#include <QLabel>

#include "pages/PageTexts.h"
#include "ui/qt/QtPicture.h"

namespace plovix {

QtActionDialog::QtActionDialog(ActionPage& page, PageContext& context)
    : QtPageDialog(page, context, QSize(480, 260)), page_(page) {
  setObjectName("actionPage");
  auto* picture = new QLabel(this);
  picture->setPixmap(wizardPicture(QSize(130, 230)));
  picture->setGeometry(10, 10, 130, 230);

  const QFont pageFont("MS Sans Serif", 8);
  auto* intro = new QLabel(QString::fromStdString(std::string(pagetexts::kActionIntro)), this);
  intro->setWordWrap(true);
  intro->setFont(pageFont);
  intro->setGeometry(155, 12, 315, 48);
  auto* question = new QLabel(QString::fromStdString(std::string(pagetexts::kActionQuestion)), this);
  question->setFont(pageFont);
  question->setGeometry(155, 72, 315, 20);

  create_ = new QRadioButton(QString::fromStdString(std::string(pagetexts::kCreateChoice)), this);
  create_->setObjectName("create");
  create_->setFont(pageFont);
  create_->setGeometry(170, 100, 300, 24);
  edit_ = new QRadioButton(QString::fromStdString(std::string(pagetexts::kEditChoice)), this);
  edit_->setObjectName("edit");
  edit_->setFont(pageFont);
  edit_->setGeometry(170, 128, 300, 24);

  auto* notice = new QLabel(QString::fromStdString(page.notice), this);
  notice->setWordWrap(true);
  notice->setGeometry(155, 200, 315, 40);
}

void QtActionDialog::pullControls() {
  page_.createChecked = create_->isChecked();
}

void QtActionDialog::pushControls() {
  create_->setChecked(page_.createChecked);
  edit_->setChecked(!page_.createChecked);
}

}  // namespace plovix
