#pragma once

struct sqlite3;

namespace jet {

/// Registers First, Last, StDev, StDevP, Var and VarP, and jet_only, which refuses a second row with error 3354. Throws
/// RuntimeError where the library refuses.
void registerAggregates(sqlite3* connection);

} // namespace jet
