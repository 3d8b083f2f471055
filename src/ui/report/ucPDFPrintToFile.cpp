#include "ui/report/ucPDFPrintToFile.h"

#include "core/RuntimeError.h"

#include <QDir>
#include <QFileDialog>
#include <QPdfWriter>
#include <QSaveFile>
#include <QScopeGuard>
#include <QStandardPaths>

namespace {

bool endsInSeparator(const QString& folder) {
    return folder.endsWith('/') || folder.endsWith('\\');
}

QString folderOf(const QString& folder) {
    const QString base =
        folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : folder;
    return endsInSeparator(base) ? base : base + QDir::separator();
}

} // namespace

ucPDFPrintToFile::ucPDFPrintToFile(QWidget* parent) : QWidget(parent) {
    hide();
}

const StoredProperties& ucPDFPrintToFile::storedProperties() {
    static const StoredProperties names{{"FilePath", "FilePath"}, {"Filename", "FileName"}, {"AutoSave", "AutoSave"}};
    return names;
}

QString ucPDFPrintToFile::path() const {
    const QString name = fileName_.isEmpty() ? tr("Report") : fileName_;
    const bool ended = name.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
    return folderOf(filePath_) + (ended ? name : name + QStringLiteral(".pdf"));
}

bool ucPDFPrintToFile::Start(const std::function<void(QPdfWriter&)>& print) {
    if (active_)
        return false;
    active_ = true;
    cancelled_ = false;
    const auto end = qScopeGuard([this] { active_ = false; });
    if (!autoSave_ && !askForPath())
        return false;
    return !cancelled_ && write(print);
}

bool ucPDFPrintToFile::askForPath() {
    const QString chosen =
        QFileDialog::getSaveFileName(window(), tr("Save PDF File As"), path(), tr("PDF files (*.pdf)"));
    if (chosen.isEmpty())
        return false;
    const QFileInfo file(chosen);
    filePath_ = QDir::toNativeSeparators(file.path());
    fileName_ = file.fileName();
    return true;
}

bool ucPDFPrintToFile::write(const std::function<void(QPdfWriter&)>& print) {
    QSaveFile file(path());
    const auto fail = [&] {
        throw RuntimeError(75, "The file '" + path().toStdString() +
                                   "' cannot be written: " + file.errorString().toStdString());
    };
    if (!file.open(QIODevice::WriteOnly))
        fail();
    {
        QPdfWriter writer(&file);
        print(writer);
    }
    if (cancelled_) {
        file.cancelWriting();
        return false;
    }
    if (!file.commit())
        fail();
    return true;
}
