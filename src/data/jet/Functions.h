#pragma once

struct sqlite3;

namespace jet {

/// Registers on a connection the functions that emitted statements call, with their exact meaning in the dialect, and
/// hides nothing: emitted SQL alone decides which of them run. Throws RuntimeError where the library refuses.
void registerFunctions(sqlite3* connection);

} // namespace jet
