// The pictures the Qt pages draw for themselves: the wizard picture of the action page and the icons of the
// modulon tree, the file list and the look-in box.
#pragma once

#include <QIcon>
#include <QPixmap>

namespace plovix {

QPixmap wizardPicture(QSize size);

// Icons by the image numbers of the page logic.
QIcon modulonTreeIcon(int image);
QIcon fileListIcon(int image);
QIcon lookInIcon(int icon);

}  // namespace plovix
