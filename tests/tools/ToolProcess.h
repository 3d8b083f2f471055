#pragma once

#include <string>
#include <vector>

/// What a run of callscope-tool left.
struct ToolRun {
    int status = -1; ///< exit status; -1 where the process was ended by a signal
    std::string output;
    std::string errors;
};

/// Runs the tool with these arguments and waits for it.
ToolRun runTool(const std::vector<std::string>& arguments);

/// All bytes of a file; empty where there is none.
std::string fileContents(const std::string& path);
