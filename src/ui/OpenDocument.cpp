#include "ui/OpenDocument.h"

#include "core/LogAndGoOn.h"
#include "core/Prompts.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

namespace {

std::function<bool(const std::string&)>& opener() {
    static std::function<bool(const std::string&)> function;
    return function;
}

QString documentFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!documents.isEmpty() && QDir().mkpath(documents) && QFileInfo(documents).isWritable())
        return documents;
    return QDir::tempPath();
}

bool openOnDesktop(const std::string& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)));
}

} // namespace

std::string newDocumentPath(const std::string& name, const std::string& ending) {
    const QString base = documentFolder() + '/' + QString::fromStdString(name);
    const QString end = '.' + QString::fromStdString(ending);
    QString path = base + end;
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = base + QStringLiteral(" %1").arg(number) + end;
    return path.toStdString();
}

void openDocument(const std::string& path) {
    if (!(opener() ? opener()(path) : openOnDesktop(path)))
        showMessage("The document has been saved as " + path, PromptStyle::Information);
}

void logAndTell(const std::function<void()>& step) {
    try {
        step();
    } catch (...) {
        logCurrentError();
        showMessage(currentError().description);
    }
}

void setDocumentOpener(std::function<bool(const std::string& path)> function) {
    opener() = std::move(function);
}
