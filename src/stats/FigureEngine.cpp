#include "stats/FigureEngine.h"

namespace {

FigureEngine chosen = FigureEngine::Automatic;
FigureEngine used = FigureEngine::Automatic;

} // namespace

void setFigureEngine(FigureEngine engine) {
    chosen = engine;
}

FigureEngine figureEngine() {
    return chosen;
}

FigureEngine usedFigureEngine() {
    return used;
}

void noteUsedFigureEngine(FigureEngine engine) {
    used = engine;
}
