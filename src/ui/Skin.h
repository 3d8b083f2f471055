#pragma once

#include "ui/cColours_CS.h"

#include <QColor>

class QApplication;
class QWidget;

/// The colours of gColours, or the product's own where it is not set.
cColours_CS skinColours();

inline QColor toColor(Colour colour) {
    return QColor::fromRgb(redOf(colour), greenOf(colour), blueOf(colour));
}

/// The one look of all windows: style, palette, style sheet, window icon. Controls choose a variant by a property:
/// a QPushButton "kind" of "primary" (one per window) or "danger"; a QLabel "role" of "title", "headline",
/// "section", "caption", "hint", "detail", "step" or "message".
void applySkin(QApplication& application);

/// Changes the variant of a control that is already shown.
void setRole(QWidget& control, const char* role);
