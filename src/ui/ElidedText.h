#pragma once

#include <QString>

class QFontMetrics;

/// `text` where it fits into `width` device-independent pixels, else as much of it as fits with "..." behind it.
QString elidedText(const QFontMetrics& metrics, const QString& text, int width);
