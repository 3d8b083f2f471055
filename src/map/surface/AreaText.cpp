#include "map/surface/AreaText.h"

#include <QLocale>

#include <cmath>

namespace {

constexpr std::string_view MoneyMark = "(£)";

/// With separators of thousands; two decimals where it is no whole number, more where it is small.
std::string numberText(double number, bool money) {
    static const QLocale locale(QLocale::English, QLocale::UnitedKingdom);
    const bool whole = number == std::floor(number) && std::abs(number) < 1e15;
    int decimals = whole ? 0 : 2;
    if (money)
        decimals = 2;
    else if (!whole && std::abs(number) < 1.0)
        decimals = 4;
    return (money ? "£" : "") + locale.toString(number, 'f', decimals).toStdString();
}

} // namespace

std::string areaName(const DrawnMap& map, const MapHit& hit) {
    const MapShape& shape = shapeOf(map, hit);
    return shape.name.empty() ? drawnOf(map, hit).label : shape.name;
}

std::string areaValue(const DrawnMap& map, const MapHit& hit) {
    const Layer& layer = layerOf(map, hit);
    const Value& value = drawnOf(map, hit).value;
    if (layer.LayerSymbolExpression.empty())
        return {};
    if (value.isNull())
        return "no figure";
    if (!value.isNumber())
        return value.asText();
    return numberText(value.asDouble(), layer.LayerName.ends_with(MoneyMark));
}
