#pragma once

#include <functional>

namespace CLI {
class App;
}

/// The commands of callscope-tool. Each adds itself with its options to the command line and leaves in `action` what is
/// to be done once the line has been read: a function that gives the exit status. Faults leave it as RuntimeError.
using Action = std::function<int()>;

void addSampleCommand(CLI::App& app, Action& action);
void addSqlCommand(CLI::App& app, Action& action);
void addReportCommand(CLI::App& app, Action& action);
void addGuideCommand(CLI::App& app, Action& action);

/// Exit statuses of the tool.
inline constexpr int Done = 0;
inline constexpr int Failed = 1;
inline constexpr int WrongArguments = 2;
