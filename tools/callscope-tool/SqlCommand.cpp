#include "core/cPathControl.h"
#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tools/callscope-tool/Commands.h"
#include "tools/callscope-tool/TextOutput.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace {

struct SqlOptions {
    std::string file;
    std::string password;
    bool create = false;
    bool tsv = false;
    bool csv = false;
    std::vector<std::string> statements;
};

std::shared_ptr<Database> openFile(const SqlOptions& options) {
    const std::string connect = options.password.empty() ? "" : "MS Access;PWD=" + options.password;
    if (options.create && !std::filesystem::exists(toPath(options.file)))
        return defaultWorkspace()->createDatabase(options.file, connect);
    return defaultWorkspace()->openDatabase(options.file, Workspace::Access::Shared, connect);
}

int runSql(const SqlOptions& options) {
    const auto database = openFile(options);
    for (const std::string& statement : options.statements) {
        try {
            if (const auto rows = database->run(statement))
                writeRows(std::cout, *rows, options.csv ? RowFormat::Csv : RowFormat::Tsv);
        } catch (const DatabaseError& error) {
            std::cout.flush();
            // Positions count from 1; 0 where the fault lies in no one place of the statement.
            const std::size_t position = error.position() ? *error.position() + 1 : 0;
            std::cerr << "error " << error.number() << " at " << position << ": " << error.what() << '\n';
            return Failed;
        }
    }
    return Done;
}

} // namespace

void addSqlCommand(CLI::App& app, Action& action) {
    auto options = std::make_shared<SqlOptions>();
    CLI::App* command = app.add_subcommand("sql", "Runs statements on a database file");
    command->add_option("--db", options->file, "The database file")->required();
    command->add_option("--password", options->password, "Its password");
    command->add_flag("--create", options->create, "Make the file where it does not exist");
    CLI::Option* tsv = command->add_flag("--tsv", options->tsv, "Rows separated by tabs, nulls as \\N (the default)");
    command->add_flag("--csv", options->csv, "Rows separated by commas, nulls as empty fields")->excludes(tsv);
    command->add_option("statement", options->statements, "Statements, run in order until one fails")->required();
    command->callback([options, &action] { action = [options] { return runSql(*options); }; });
}
