#include "app/ProgramOptions.h"

namespace {

/// The value of "--name value" or "--name=value"; moves `at` onto the last argument used. Empty where there is none.
std::string optionValue(const std::vector<std::string>& arguments, std::size_t& at) {
    const std::string& argument = arguments[at];
    if (const std::size_t equals = argument.find('='); equals != std::string::npos)
        return argument.substr(equals + 1);
    return at + 1 < arguments.size() ? arguments[++at] : std::string();
}

} // namespace

ProgramOptions parseOptions(const std::vector<std::string>& arguments) {
    ProgramOptions options;
    std::size_t at = 0;
    for (; at < arguments.size() && arguments[at].starts_with('-') && options.fault.empty(); ++at) {
        const std::string& argument = arguments[at];
        if (argument == "--") {
            ++at;
            break;
        }
        if (argument == "--help" || argument == "-h")
            options.help = true;
        else if (argument == "--version")
            options.version = true;
        else if (argument != "--paths-folder" && !argument.starts_with("--paths-folder="))
            options.fault = "unknown option " + argument;
        else if (options.pathsFolder = optionValue(arguments, at); options.pathsFolder.empty())
            options.fault = "--paths-folder needs a folder behind it";
    }
    if (options.fault.empty())
        options.arguments.assign(arguments.begin() + static_cast<std::ptrdiff_t>(at), arguments.end());
    return options;
}

std::string helpText() {
    return "Usage: callscope-mapping [options] [project]\n"
           "\n"
           "Shows on maps of the United Kingdom where a customer's calls come from.\n"
           "The project is the path of a project database, or a line of three quoted\n"
           "fields, \"\",\"\",\"path\". A recent project of the installation comes before it.\n"
           "\n"
           "Options:\n"
           "  --paths-folder DIR  the folder that holds Paths.txt (it is made there where it\n"
           "                      is missing); default: the folder of the program file.\n"
           "                      A folder \"system\" in DIR holds the delivered files.\n"
           "  --version           print the version and end\n"
           "  -h, --help          print this help and end\n"
           "\n"
           "Exit status: 0 after the main window was closed, 1 when the start failed,\n"
           "2 for wrong options.\n";
}
