#include "tests/tools/ToolProcess.h"

#include "tests/support/TemporaryFolder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

#include <sys/wait.h>

namespace {
std::string quoted(const std::string& argument) {
    std::string text = "'";
    for (const char c : argument)
        text += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return text + "'";
}
} // namespace

std::string fileContents(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

ToolRun runTool(const std::vector<std::string>& arguments) {
    const TemporaryFolder folder;
    std::string command = quoted(CALLSCOPE_TOOL);
    for (const std::string& argument : arguments)
        command += " " + quoted(argument);
    command += " >" + quoted(folder.file("out")) + " 2>" + quoted(folder.file("err"));
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, fileContents(folder.file("out")),
            fileContents(folder.file("err"))};
}
