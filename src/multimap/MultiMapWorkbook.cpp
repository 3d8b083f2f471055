#include "multimap/MultiMapWorkbook.h"

#include "map/MapMeasures.h"
#include "multimap/MultiMapSession.h"

std::vector<ParameterLine> parametersOfMaps(const MultiMapSession& session) {
    std::vector<ParameterLine> lines;
    if (const MapMeasure* measure = findMapMeasure(session.mapType()))
        lines.push_back({"Data=", std::string(measure->text)});
    for (int n = 1; n <= session.count(); ++n)
        lines.push_back({"Map " + std::to_string(n) + "=", session.period(n)});
    const std::vector<ParameterLine> selected = descriptionLines(session.selection());
    lines.insert(lines.end(), selected.begin(), selected.end());
    return lines;
}
