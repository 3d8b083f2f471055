#include "help/GuideFiles.h"
#include "tools/callscope-tool/Commands.h"
#include "tools/callscope-tool/Painting.h"

#include <CLI/CLI.hpp>

#include <memory>

void addGuideCommand(CLI::App& app, Action& action) {
    auto folder = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand("guide", "Writes the user guide as a PDF and as plain text");
    command->add_option("--dir", *folder, "The folder to write it to, which exists")->required();
    command->callback([folder, &action] {
        action = [folder] {
            startPainting();
            writeGuideFiles(*folder);
            return Done;
        };
    });
}
