#include "stats/FigureEngine.h"

namespace {

FigureEngine chosen = FigureEngine::Automatic;

} // namespace

void setFigureEngine(FigureEngine engine) {
    chosen = engine;
}

FigureEngine figureEngine() {
    return chosen;
}
