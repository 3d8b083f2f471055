#include "tools/callscope-tool/Painting.h"

#include "core/ModDeclarations.h"

#include <QGuiApplication>

#include <iostream>

void startPainting() {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The painting library's remarks on the machine's desktop say nothing to the users of this tool.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type == QtCriticalMsg || type == QtFatalMsg)
            std::cerr << message.toStdString() << '\n';
    });
    static int count = 1;
    static char name[] = "callscope-tool";
    static char* arguments[] = {name, nullptr};
    static QGuiApplication application(count, arguments);
    gsFontName = "Calibri";
}
