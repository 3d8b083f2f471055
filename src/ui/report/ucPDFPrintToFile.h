#pragma once

#include "ui/PropertyBag.h"

#include <QWidget>

#include <functional>

class QPdfWriter;

/// Makes a PDF file. It has no face of its own: a window holds it beside its controls. Main thread only.
class ucPDFPrintToFile : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString FilePath READ FilePath WRITE setFilePath)
    Q_PROPERTY(QString FileName READ FileName WRITE setFileName)
    Q_PROPERTY(bool AutoSave READ AutoSave WRITE setAutoSave)
    Q_PROPERTY(bool Active READ Active)

public:
    explicit ucPDFPrintToFile(QWidget* parent = nullptr);

    /// The folder of the file; empty: the user's folder of documents.
    QString FilePath() const { return filePath_; }
    void setFilePath(const QString& folder) { filePath_ = folder; }
    /// The name of the file; ".pdf" is added where it is missing.
    QString FileName() const { return fileName_; }
    void setFileName(const QString& name) { fileName_ = name; }
    /// Whether the file is written without asking; a file of the name is then replaced.
    bool AutoSave() const { return autoSave_; }
    void setAutoSave(bool on) { autoSave_ = on; }
    /// A job is in hand; another cannot be begun.
    bool Active() const { return active_; }

    /// The whole path that folder and name make.
    QString path() const;
    /// Writes the file with what `print` paints, after asking for its name unless AutoSave is set. The name chosen
    /// becomes FilePath and FileName. False where the user gives none, where the job has been cancelled or where one is
    /// in hand; a file that was there before is then as it was. Throws RuntimeError 75, naming the path, where it
    /// cannot be written, and lets the errors of `print` pass.
    bool Start(const std::function<void(QPdfWriter&)>& print);
    /// Drops the job in hand: what `print` still paints goes nowhere.
    void Cancel() { cancelled_ = true; }

    static const StoredProperties& storedProperties();

private:
    bool askForPath();
    bool write(const std::function<void(QPdfWriter&)>& print);

    QString filePath_, fileName_;
    bool autoSave_ = false, active_ = false, cancelled_ = false;
};
