// Building the Qt browser page and forwarding its events.
#include "ui/qt/QtBrowserDialog.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QShortcut>
#include <QStyledItemDelegate>

#include "pages/PageTexts.h"
#include "ui/qt/QtPicture.h"

namespace plovix {

namespace {

QString text(std::string_view s) {
  return QString::fromStdString(std::string(s));
}

// Indents the look-in box's items by their level in the drop-down list.
class LookInDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem indented = option;
    indented.rect.setLeft(option.rect.left() + index.data(Qt::UserRole).toInt() * LookInBox::kIndentPerLevel);
    QStyledItemDelegate::paint(painter, indented, index);
  }
};

// The wait cursor while the list is filled.
class WaitCursor {
 public:
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

QToolButton* viewButton(QWidget* parent, std::string_view tip, QStyle::StandardPixmap icon, const char* name,
                        QRect rect) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setToolTip(text(tip));
  button->setIcon(parent->style()->standardIcon(icon));
  button->setGeometry(rect);
  return button;
}

}  // namespace

QtBrowserDialog::QtBrowserDialog(VariationBrowserPage& page, PageContext& context)
    : QtPageDialog(page, context, QSize(560, 392)), page_(page) {
  setObjectName("browserPage");
  (new QLabel(text(pagetexts::kBrowserQuestion), this))->setGeometry(10, 8, 540, 18);
  auto* lookInLabel = new QLabel(text(pagetexts::kLookInLabel), this);
  lookInLabel->setGeometry(10, 34, 70, 22);
  lookIn_ = new QComboBox(this);
  lookIn_->setObjectName("lookIn");
  lookIn_->setGeometry(80, 32, 370, 26);
  lookIn_->setItemDelegate(new LookInDelegate(lookIn_));
  QFont lookInFont("MS Sans Serif", 8);
  lookIn_->setFont(lookInFont);
  registerControl(kControlLookIn, lookIn_);
  upOneLevel_ = viewButton(this, pagetexts::kUpOneLevel, QStyle::SP_FileDialogToParent, "upOneLevel",
                           QRect(458, 32, 28, 26));
  listView_ = viewButton(this, pagetexts::kListView, QStyle::SP_FileDialogListView, "listView",
                         QRect(490, 32, 28, 26));
  detailedView_ = viewButton(this, pagetexts::kDetailedView, QStyle::SP_FileDialogDetailedView,
                             "detailedView", QRect(522, 32, 28, 26));
  listView_->setCheckable(true);
  detailedView_->setCheckable(true);
  registerControl(kControlUpOneLevel, upOneLevel_);
  registerControl(kControlListView, listView_);
  registerControl(kControlDetailedView, detailedView_);

  list_ = new QTreeWidget(this);
  list_->setObjectName("fileList");
  list_->setRootIsDecorated(false);
  list_->setColumnCount(4);
  list_->setHeaderLabels({text(pagetexts::kColumnFileName), text(pagetexts::kColumnSize),
                          text(pagetexts::kColumnType), text(pagetexts::kColumnLastModified)});
  const int widths[] = {106, 50, 60, 120};
  for (int i = 0; i < 4; ++i) list_->setColumnWidth(i, widths[i]);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setGeometry(10, 64, 540, 150);
  registerControl(kControlFileList, list_);

  auto* fileNameLabel = new QLabel(text(pagetexts::kFileNameLabel), this);
  fileNameLabel->setGeometry(10, 222, 100, 24);
  fileName_ = new QLineEdit(this);
  fileName_->setObjectName("fileName");
  fileName_->setGeometry(110, 222, 440, 24);
  registerControl(kControlFileName, fileName_);
  auto* fileTypeLabel = new QLabel(text(pagetexts::kFileTypeLabel), this);
  fileTypeLabel->setGeometry(10, 252, 100, 24);
  fileType_ = new QComboBox(this);
  fileType_->setObjectName("fileType");
  fileType_->setGeometry(110, 252, 440, 24);
  registerControl(kControlFileType, fileType_);
  wizardOnly_ = new QCheckBox(text(pagetexts::kWizardOnlyCheck), this);
  wizardOnly_->setObjectName("wizardOnly");
  wizardOnly_->setGeometry(10, 280, 540, 22);
  registerControl(kControlWizardOnly, wizardOnly_);
  auto* note = new QLabel(text(pagetexts::kBrowserModulonNote), this);
  note->setWordWrap(true);
  note->setGeometry(10, 306, 540, 50);
  auto* modulonLabel = new QLabel(text(pagetexts::kModulonBoxLabel), this);
  modulonLabel->setGeometry(10, 362, 110, 24);
  modulon_ = new QComboBox(this);
  modulon_->setObjectName("modulonName");
  modulon_->setEditable(true);
  modulon_->setInsertPolicy(QComboBox::NoInsert);
  modulon_->setGeometry(120, 362, 430, 24);
  registerControl(kControlModulonBox, modulon_);
  lookInLabel->setBuddy(lookIn_);
  fileNameLabel->setBuddy(fileName_);
  fileTypeLabel->setBuddy(fileType_);
  modulonLabel->setBuddy(modulon_);

  connect(lookIn_, &QComboBox::activated, this, [this](int index) {
    {
      WaitCursor wait;
      page_.chooseLookIn(context_, index);
    }
    afterEvent(false);
  });
  connect(fileType_, &QComboBox::activated, this, [this](int index) {
    {
      WaitCursor wait;
      page_.selectFileType(context_, index);
    }
    afterEvent(false);
  });
  connect(wizardOnly_, &QCheckBox::clicked, this, [this] {
    {
      WaitCursor wait;
      page_.clickWizardOnly(context_);
    }
    afterEvent(false);
  });
  connect(fileName_, &QLineEdit::textEdited, this, [this](const QString& typed) {
    page_.changeFileName(typed.toStdString());
    pushModulonBox();
  });
  connect(modulon_, &QComboBox::editTextChanged, this, [this](const QString& typed) {
    if (!updating_) page_.modulonText = typed.toStdString();
  });
  connect(list_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
    page_.clickItem(list_->indexOfTopLevelItem(item));
    afterEvent(false);
  });
  connect(list_, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
    afterEvent(page_.doubleClickItem(context_, list_->indexOfTopLevelItem(item), windowRect()));
  });
  connect(list_->header(), &QHeaderView::sectionClicked, this, [this](int column) {
    page_.list.sortBy(column);
    pushList();
  });
  connect(list_, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) { finishRename(item); });
  auto* rename = new QShortcut(QKeySequence(Qt::Key_F2), list_, nullptr, nullptr, Qt::WidgetShortcut);
  connect(rename, &QShortcut::activated, this, [this] { startRename(); });
  connect(upOneLevel_, &QToolButton::clicked, this, [this] {
    {
      WaitCursor wait;
      page_.upOneLevel(context_);
    }
    afterEvent(false);
  });
  connect(listView_, &QToolButton::clicked, this, [this] {
    page_.showDetailedView(false);
    afterEvent(false);
  });
  connect(detailedView_, &QToolButton::clicked, this, [this] {
    page_.showDetailedView(true);
    afterEvent(false);
  });
}

void QtBrowserDialog::startRename() {
  const int index = page_.renameTarget();
  if (index < 0) return;
  QTreeWidgetItem* item = list_->topLevelItem(index);
  renaming_ = index;
  updating_ = true;
  item->setFlags(item->flags() | Qt::ItemIsEditable);
  updating_ = false;
  list_->editItem(item, 0);
}

void QtBrowserDialog::finishRename(QTreeWidgetItem* item) {
  if (updating_ || renaming_ < 0 || list_->indexOfTopLevelItem(item) != renaming_) return;
  const int index = renaming_;
  renaming_ = -1;
  page_.renameItem(context_, index, item->text(0).toStdString());
  shownItems_.clear();  // the edited row shows the typed name, also when the rename failed
  pushList();
}

void QtBrowserDialog::pushList() {
  updating_ = true;
  const bool detailed = page_.list.detailedView;
  list_->setHeaderHidden(!detailed);
  for (int column = 1; column < 4; ++column) list_->setColumnHidden(column, !detailed);
  // The rows are made anew only when the listing changed: after a click that only selects, the second click
  // of a double-click must land on the row that the first one chose.
  if (page_.list.items() != shownItems_) {
    list_->clear();
    shownItems_ = page_.list.items();
    for (const FileListItem& item : shownItems_) {
      auto* row = new QTreeWidgetItem(list_);
      for (int column = 0; column < 4; ++column) {
        row->setText(column, QString::fromStdString(FileList::columnText(item, column)));
      }
      row->setTextAlignment(kColumnSize, Qt::AlignRight | Qt::AlignVCenter);
      row->setTextAlignment(kColumnType, Qt::AlignCenter);
      row->setIcon(0, fileListIcon(FileList::imageOfKind(item.kind)));
    }
  }
  QTreeWidgetItem* selected =
      page_.selectedItem >= 0 ? list_->topLevelItem(page_.selectedItem) : nullptr;  // null when out of range
  if (selected != nullptr && selected != list_->currentItem()) list_->setCurrentItem(selected);
  listView_->setChecked(!detailed);
  detailedView_->setChecked(detailed);
  updating_ = false;
}

void QtBrowserDialog::pushModulonBox() {
  updating_ = true;
  if (modulon_->count() != static_cast<int>(page_.modulonItems.size())) {
    modulon_->clear();
    for (const std::string& item : page_.modulonItems) modulon_->addItem(QString::fromStdString(item));
  }
  const int index = modulon_->findText(QString::fromStdString(page_.modulonText), Qt::MatchExactly);
  if (index >= 0) modulon_->setCurrentIndex(index);
  modulon_->setEditText(QString::fromStdString(page_.modulonText));
  updating_ = false;
}

void QtBrowserDialog::pushControls() {
  updating_ = true;
  lookIn_->clear();
  for (const LookInItem& item : page_.lookIn.items()) {
    lookIn_->addItem(lookInIcon(item.icon), QString::fromStdString(item.displayText));
    lookIn_->setItemData(lookIn_->count() - 1, item.level, Qt::UserRole);
  }
  lookIn_->setCurrentIndex(page_.lookIn.selected());
  fileType_->clear();
  for (const auto& [display, pattern] : page_.fileTypes) fileType_->addItem(QString::fromStdString(display));
  fileType_->setCurrentIndex(page_.selectedFileType);
  wizardOnly_->setChecked(page_.wizardOnlyChecked);
  if (fileName_->text().toStdString() != page_.fileNameText)
    fileName_->setText(QString::fromStdString(page_.fileNameText));
  updating_ = false;
  pushList();
  pushModulonBox();
}

}  // namespace plovix
