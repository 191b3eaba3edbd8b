// How the program's boxes look: signs of its own, and a frame as boxes have it.
#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QPixmap>

namespace qt_adapter {

/// In the desktop's light and dark alike. Null for NoIcon.
QPixmap SignOf(QMessageBox::Icon icon, int side, double ratio);

/// A title and a way to close it; it cannot be made large or small. Call it before the box is
/// shown.
void GiveBoxFrame(QDialog& box);

/// Their words say enough: no pictures on the box's buttons.
void PlainButtons(QDialog& box);

}  // namespace qt_adapter
