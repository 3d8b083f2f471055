#include "stats/FigureSource.h"

#include "stats/FigureEngine.h"
#include "stats/ScanFigures.h"
#include "stats/StatementFigures.h"

std::unique_ptr<FigureSource> newFigureSource(const BoundaryTraits& boundary) {
    if (figureEngine() == FigureEngine::Statements)
        return std::make_unique<StatementFigures>(boundary);
    return std::make_unique<ScanFigures>(boundary);
}
