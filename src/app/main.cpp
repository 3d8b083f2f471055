#include "app/DesktopStart.h"
#include "app/ModUtilities_Main.h"
#include "app/ProgramOptions.h"
#include "core/ModDeclarations.h"
#include "core/Version.h"
#include "core/cPathControl.h"
#include "ui/InterfaceFont.h"
#include "ui/MessageBoxPrompts.h"
#include "ui/Skin.h"

#include <QApplication>

#include <iostream>

namespace {

InstallationFolders foldersOf(const ProgramOptions& options) {
    if (options.pathsFolder.empty())
        return {QCoreApplication::applicationDirPath().toStdString(), {}, {}};
    const std::string whole = toText(std::filesystem::absolute(toPath(options.pathsFolder)));
    return {whole, {}, portableSystemFolder(whole)};
}

/// From the start to the end of the message loop.
int run(QApplication& application, const ProgramOptions& options) {
    QApplication::setApplicationName(QString::fromUtf8(programTitle));
    QApplication::setApplicationVersion(QString::fromStdString(programVersion()));
    applySkin(application);
    applyInterfaceFont();
    MessageBoxPrompts messageBoxes;
    const InstallationFolders folders = foldersOf(options);
    DesktopStart actions(folders.programFolder, options.arguments);
    if (ModUtilities_Main(folders, actions) == StartResult::Ended)
        return 1;
    return actions.mainWindowIsOpen() ? QApplication::exec() : 0;
}

} // namespace

int main(int argc, char* argv[]) {
    const ProgramOptions options = parseOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (!options.fault.empty()) {
        std::cerr << "callscope-mapping: " << options.fault << "\nTry callscope-mapping --help\n";
        return 2;
    }
    if (options.help || options.version) {
        std::cout << (options.help ? helpText() : std::string(programTitle) + ' ' + programVersion() + '\n');
        return 0;
    }
    QApplication application(argc, argv);
    const int status = run(application, options);
    resetGlobals();
    return status;
}
