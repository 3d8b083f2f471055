#include "core/RuntimeError.h"
#include "tools/callscope-tool/Commands.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>

namespace {

int run(int argc, char** argv) {
    CLI::App app("Callscope Mapping without windows: sample data, statements, reports", "callscope-tool");
    app.require_subcommand(1);
    Action action;
    addSampleCommand(app, action);
    addSqlCommand(app, action);
    addReportCommand(app, action);
    addGuideCommand(app, action);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& help) {
        return app.exit(help);
    } catch (const CLI::ParseError& error) {
        app.exit(error, std::cerr, std::cerr);
        return WrongArguments;
    }
    return action();
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const RuntimeError& error) {
        std::cerr << "error " << error.number() << ": " << error.what() << '\n';
    } catch (const std::exception& error) {
        std::cerr << "error: " << error.what() << '\n';
    }
    return Failed;
}
