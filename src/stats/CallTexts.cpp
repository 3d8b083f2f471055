#include "stats/CallTexts.h"

#include "stats/FigureEngine.h"
#include "stats/ProjectCalls.h"

#include <algorithm>

std::optional<std::vector<std::string>> callTexts(CallField field) {
    if (figureEngine() == FigureEngine::Statements)
        return {};
    const auto columns = projectCalls();
    if (!columns)
        return {};
    std::vector<std::string> texts;
    for (const Value& value : columns->valuesOf(field))
        if (!value.isNull())
            texts.push_back(value.asText());
    std::stable_sort(texts.begin(), texts.end(),
                     [](const std::string& a, const std::string& b) { return compareText(a, b) < 0; });
    texts.erase(std::unique(texts.begin(), texts.end(), equalText), texts.end());
    return texts;
}
