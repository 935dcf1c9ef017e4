// Drawing the pages' pictures and choosing their icons from the style.
#include "ui/qt/QtPicture.h"

#include <QApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QStyle>

#include "pages/FileList.h"
#include "pages/LookInBox.h"
#include "pages/ModulonTree.h"

namespace plovix {

QPixmap wizardPicture(QSize size) {
  QPixmap pixmap(size);
  QPainter painter(&pixmap);
  QLinearGradient gradient(0, 0, 0, size.height());
  gradient.setColorAt(0, QColor(0, 64, 128));
  gradient.setColorAt(1, QColor(0, 128, 128));
  painter.fillRect(pixmap.rect(), gradient);
  // A chip with its pins.
  const int w = size.width();
  const QRect chip(w / 4, size.height() / 3, w / 2, w / 2);
  painter.setPen(QPen(QColor(220, 220, 220), 2));
  for (int i = 1; i < 5; ++i) {
    const int x = chip.left() + chip.width() * i / 5;
    const int y = chip.top() + chip.height() * i / 5;
    painter.drawLine(x, chip.top() - 8, x, chip.bottom() + 8);
    painter.drawLine(chip.left() - 8, y, chip.right() + 8, y);
  }
  painter.fillRect(chip, QColor(30, 30, 30));
  painter.setPen(QColor(255, 255, 255));
  painter.drawText(chip, Qt::AlignCenter, "plovix");
  return pixmap;
}

QIcon modulonTreeIcon(int image) {
  QStyle* style = QApplication::style();
  return image == ModulonTree::kFolderImage ? style->standardIcon(QStyle::SP_DirIcon)
                                            : style->standardIcon(QStyle::SP_FileDialogContentsView);
}

QIcon fileListIcon(int image) {
  QStyle* style = QApplication::style();
  if (image == FileList::imageOfKind(kFolderKind)) return style->standardIcon(QStyle::SP_DirIcon);
  if (image == FileList::imageOfKind(kOtherFileKind)) return style->standardIcon(QStyle::SP_FileIcon);
  return style->standardIcon(QStyle::SP_FileDialogDetailedView);
}

QIcon lookInIcon(int icon) {
  QStyle* style = QApplication::style();
  switch (icon) {
    case LookInBox::kLocalDrive - 2:
      return style->standardIcon(QStyle::SP_DriveHDIcon);
    case LookInBox::kNetworkDrive - 2:
      return style->standardIcon(QStyle::SP_DriveNetIcon);
    case LookInBox::kCurrentFolderIcon:
      return style->standardIcon(QStyle::SP_DirOpenIcon);
    default:
      return style->standardIcon(QStyle::SP_DirClosedIcon);
  }
}

}  // namespace plovix
