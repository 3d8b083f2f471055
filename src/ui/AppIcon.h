#pragma once

#include <QIcon>

/// The icon of all windows, at the sizes that window managers and task bars ask for (16 to 256 pixels).
QIcon appIcon();
