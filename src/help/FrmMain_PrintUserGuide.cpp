#include "help/FrmMain_PrintUserGuide.h"

#include "core/CurrentProcedure.h"
#include "core/FileNames.h"
#include "core/Prompts.h"
#include "core/RuntimeError.h"
#include "core/cPathControl.h"
#include "ui/OpenDocument.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <fstream>

namespace {

constexpr size_t linesOnPage = 80;

std::string guideFolder() {
    return gPaths ? gPaths->ApplicationDataPath : std::string();
}

void printLines(const std::vector<std::vector<std::string>>& pages) {
    QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    QPainter painter;
    if (QPrinterInfo::defaultPrinter().isNull() || !painter.begin(&printer))
        throw RuntimeError(482, "Printer error: there is no printer to print on");
    const double height = printer.pageLayout().paintRectPixels(printer.resolution()).height() / (linesOnPage + 2.0);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(std::max(1, static_cast<int>(height * 0.8)));
    painter.setFont(font);
    for (size_t page = 0; page < pages.size(); ++page) {
        if (page > 0 && !printer.newPage())
            throw RuntimeError(482, "Printer error: no further page can be printed");
        double y = 0;
        for (const std::string& line : pages[page])
            painter.drawText(QPointF(0, y += height), QString::fromStdString(line));
    }
}

void printPlainText(const GuidePrinting& printing) {
    if (!fileExists(guideFolder(), "CallscopeMapping.txt")) {
        showMessage("Plain Text User Guide file is missing");
        return;
    }
    if (askYesNo("Microsoft Word does not appear to be installed on this computer.  The User Guide will therefore be "
                 "printed in Plain Text"))
        printing.text(pagesOfFile(fileInFolder(guideFolder(), "CallscopeMapping.txt")));
}

} // namespace

std::vector<std::vector<std::string>> pagesOfFile(const std::string& path) {
    std::ifstream file(toPath(path));
    if (!file)
        throw RuntimeError(53, "The file '" + path + "' cannot be read");
    std::vector<std::vector<std::string>> pages(1);
    for (std::string line; std::getline(file, line);) {
        if (pages.back().size() > linesOnPage)
            pages.emplace_back();
        if (line.ends_with('\r'))
            line.pop_back();
        pages.back().push_back(line);
    }
    return pages;
}

void FrmMain_PrintUserGuide() {
    FrmMain_PrintUserGuide({{}, printLines});
}

void FrmMain_PrintUserGuide(const GuidePrinting& printing) {
    const CurrentProcedure procedure("FrmMain_PrintUserGuide");
    logAndTell([&] {
        if (!fileExists(guideFolder(), "CallscopeMapping.pdf")) {
            showMessage("User Guide file is missing");
            return;
        }
        const std::string guide = fileInFolder(guideFolder(), "CallscopeMapping.pdf");
        if (!printing.document || !printing.document(guide))
            printPlainText(printing);
    });
}

void saveUserGuideAs(const std::string& path) {
    const bool formatted = fileExists(guideFolder(), "CallscopeMapping.pdf");
    QFile guide(QString::fromStdString(
        fileInFolder(guideFolder(), formatted ? "CallscopeMapping.pdf" : "CallscopeMapping.txt")));
    if (!guide.open(QIODevice::ReadOnly))
        throw RuntimeError(53, "User Guide file is missing");
    QSaveFile copy(QString::fromStdString(path));
    const QByteArray bytes = guide.readAll();
    if (!copy.open(QIODevice::WriteOnly) || copy.write(bytes) != bytes.size() || !copy.commit())
        throw RuntimeError(75, "The file '" + path + "' cannot be written: " + copy.errorString().toStdString());
}

void saveUserGuide() {
    const CurrentProcedure procedure("FrmMain_SaveUserGuide");
    const bool formatted = fileExists(guideFolder(), "CallscopeMapping.pdf");
    const QString ending = formatted ? QStringLiteral("pdf") : QStringLiteral("txt");
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString path = QFileDialog::getSaveFileName(
        nullptr, QObject::tr("Save User Guide"), folder + QStringLiteral("/CallscopeMapping.") + ending,
        formatted ? QObject::tr("PDF files (*.pdf)") : QObject::tr("Text files (*.txt)"));
    if (path.isEmpty())
        return;
    const QString whole = QFileInfo(path).suffix().isEmpty() ? path + '.' + ending : path;
    logAndTell([&] { saveUserGuideAs(whole.toStdString()); });
}
