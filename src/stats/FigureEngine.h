#pragma once

/// Where the statistics take their figures from.
enum class FigureEngine {
    Automatic,  ///< from a scan where the calls and the selection fit columns, by statements otherwise
    Scan,       ///< from a scan; what does not fit is an error that is logged
    Statements, ///< by statements
};

/// Of the runs that follow. Automatic until somebody sets it. Main thread.
void setFigureEngine(FigureEngine engine);
FigureEngine figureEngine();

/// Which of the two the last run counted its calls by; Automatic where it could not count them. Main thread.
FigureEngine usedFigureEngine();
void noteUsedFigureEngine(FigureEngine engine);
