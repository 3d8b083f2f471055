#include "ui/Contrast.h"

#include "ui/Skin.h"

#include <algorithm>
#include <cmath>

namespace {

double linear(double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

} // namespace

double contrastRatio(const QColor& a, const QColor& b) {
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

QColor readableOn(const QColor& back) {
    const QColor dark = toColor(skinColours().Grey(6));
    if (contrastRatio(back, dark) >= leastTextContrast)
        return dark;
    if (contrastRatio(back, Qt::white) >= leastTextContrast)
        return Qt::white;
    return Qt::black; // on colours of middling brightness
}
