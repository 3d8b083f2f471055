#pragma once

struct sqlite3;

namespace jet {

/// Registers First, Last, StDev, StDevP, Var and VarP. Throws RuntimeError where the library refuses.
void registerAggregates(sqlite3* connection);

} // namespace jet
