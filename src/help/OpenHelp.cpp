#include "help/OpenHelp.h"

#include "core/FileNames.h"
#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "help/GuideBook.h"
#include "help/HelpWindow.h"

#include <QDesktopServices>
#include <QPointer>
#include <QUrl>

namespace {

bool openHelpFile() {
    const std::string folder = gPaths ? gPaths->ApplicationRootPath : std::string();
    const std::string file = fileInFolder(folder, "CALLSCOPEMAPPING.chm");
    return fileExists(folder, "CALLSCOPEMAPPING.chm") &&
           QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(file)));
}

} // namespace

void openHelp(QWidget& window) {
    if (openHelpFile())
        return;
    // A modal window lets only windows of its own take input, so the help follows the window that asks.
    static QPointer<HelpWindow> help;
    if (help && help->parentWidget() != &window)
        delete help.data();
    if (!help)
        help = new HelpWindow(&window);
    help->showPage(guidePageOfWindow(window.objectName()));
    help->show();
    help->raise();
    help->activateWindow();
}
