#pragma once

#include "stats/ReportParameters.h"

/// What the playback asks of the map that it plays on. Main thread.
class PlaybackMap {
public:
    virtual ~PlaybackMap() = default;
    virtual long mapType() const = 0; ///< code of the measure that is chosen now
    /// Those of the report run whose map this is; what is not animated stands on them.
    virtual const ReportParameters& parameters() const = 0;
    /// Builds and draws the map of the table in use; `dataSet` is its period. The view stays. May yield.
    virtual void build(long mapType, int dataSet) = 0;
};
