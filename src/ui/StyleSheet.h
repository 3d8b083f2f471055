#pragma once

#include <QString>

class cColours_CS;

/// The style sheet of all windows. Sizes are in device-independent pixels on a grid of 8.
QString styleSheet(const cColours_CS& colours);
