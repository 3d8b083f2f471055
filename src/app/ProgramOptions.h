#pragma once

#include <string>
#include <vector>

/// The arguments of the program, cut into options and the rest.
struct ProgramOptions {
    std::string pathsFolder; ///< --paths-folder; empty: the folder of the program file
    bool help = false;
    bool version = false;
    std::vector<std::string> arguments; ///< the project, see rebuildCommandLine()
    std::string fault;                  ///< what is wrong with the options; empty: nothing
};

/// `arguments` without the program's own name. Options stand before the project; "--" ends them.
ProgramOptions parseOptions(const std::vector<std::string>& arguments);

/// What --help prints.
std::string helpText();
