#pragma once

#include <QIcon>

class QWidget;

/// The icon of all windows. It is painted at the size and scale that is asked for; window managers and task bars are
/// offered the usual sizes (16 to 256 pixels).
QIcon appIcon();

/// Puts the icon on a window that is being loaded and, where the flag says so, on the window that owns it.
void brandWindow(QWidget& window, bool ownerToo = false);
