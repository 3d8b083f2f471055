#include "map/form/LabelRule.h"

namespace {

constexpr double csgScale = 30000, exchangeScale = 3000, postCodeScale = 10000;

bool areReadable(const CurrentTables& tables, double mapScale) {
    return (!tables.CSG.empty() && mapScale < csgScale) || (!tables.ExchangeArea.empty() && mapScale < exchangeScale) ||
           (!tables.PostCodeDistrict.empty() && mapScale < postCodeScale);
}

bool hasSmallAreas(const CurrentTables& tables) {
    return !tables.CSG.empty() || !tables.ExchangeArea.empty() || !tables.PostCodeDistrict.empty();
}

} // namespace

bool labelsAfterClick(const CurrentTables& tables, double mapScale) {
    return areReadable(tables, mapScale) || !hasSmallAreas(tables);
}

bool labelsAfterToolBarClick(const CurrentTables& tables, double mapScale, bool zoomToExtent, bool flag) {
    if (zoomToExtent && hasSmallAreas(tables))
        return false;
    if (areReadable(tables, mapScale) || !tables.TV.empty())
        return true;
    return hasSmallAreas(tables) ? false : flag;
}
