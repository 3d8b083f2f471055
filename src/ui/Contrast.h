#pragma once

#include <QColor>

/// How much two colours differ in brightness for the eye, from 1 (alike) to 21 (black on white), by the rule of the
/// web's accessibility guidelines. Text is readable from leastTextContrast on.
double contrastRatio(const QColor& a, const QColor& b);

inline constexpr double leastTextContrast = 4.5;

/// The skin's darkest grey, white or black: the first of them that can be read on `back`.
QColor readableOn(const QColor& back);
