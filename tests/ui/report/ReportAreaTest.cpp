#include "core/RuntimeError.h"
#include "tests/support/TemporaryFolder.h"
#include "ui/report/ucPDFPrintToFile.h"
#include "ui/report/ucReportArea.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QPdfWriter>
#include <QScrollBar>

namespace {

/// A report of controls one below the other, each of that height.
void fill(ucReportArea& area, int count, int height) {
    for (int i = 0; i < count; ++i) {
        auto* label = new QLabel(QStringLiteral("Map %1").arg(i + 1), area.content());
        label->setGeometry(10, 10 + i * (height + 10), 300, height);
        label->setStyleSheet(QStringLiteral("background: #3366cc; color: white"));
    }
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ucPDFPrintToFile& quiet(ucPDFPrintToFile& job, const std::string& folder) {
    job.setFilePath(QString::fromStdString(folder));
    job.setFileName(QStringLiteral("Report"));
    job.setAutoSave(true);
    return job;
}

class ReportArea : public testing::Test {
protected:
    TemporaryFolder folder;
    ucReportArea area;
    ucPDFPrintToFile job;

    QString pdf() { return QString::fromStdString(folder.file("Report.pdf")); }
    std::string makeFile(const QByteArray& content) {
        QFile file(pdf());
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return folder.text();
    }
};

} // namespace

TEST_F(ReportArea, ScrollsAsFarAsItsControlsReach) {
    area.resize(400, 300);
    area.show();
    fill(area, 5, 200);
    for (QObject* control : area.content()->children())
        static_cast<QWidget*>(control)->show();
    area.RecalculateBoundries();
    EXPECT_EQ(area.content()->height(), 5 * 210);
    EXPECT_GT(area.verticalScrollBar()->maximum(), 700);
    EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0) << "the vertical bar must not call for the other";
    EXPECT_FALSE(area.allInView());
    for (int i = 1; i < 5; ++i)
        static_cast<QWidget*>(area.content()->children()[i])->hide();
    area.RecalculateBoundries();
    EXPECT_EQ(area.verticalScrollBar()->maximum(), 0);
    EXPECT_TRUE(area.allInView());
}

TEST_F(ReportArea, APdfHasAPageForEachControlThatFillsOne) {
    area.resize(400, 300);
    area.AddPrintDetails({"Multiple maps", {"Start Date = 01/03/2024"}});
    fill(area, 3, 400);
    ASSERT_TRUE(area.OutputToPDF(quiet(job, folder.text())));
    const QByteArray bytes = bytesOf(pdf());
    EXPECT_TRUE(bytes.startsWith("%PDF-"));
    EXPECT_EQ(bytes.count("/Type /Page\n"), 2) << "two controls of 400 on an upright page, one on the next";
    EXPECT_FALSE(job.Active());
}

TEST_F(ReportArea, ACancelledOrFailedJobLeavesTheOldFile) {
    quiet(job, makeFile("old"));
    const auto paint = [&](QPdfWriter& writer) {
        QPainter painter(&writer);
        painter.drawText(100, 100, "new");
        EXPECT_TRUE(job.Active());
        EXPECT_FALSE(job.Start([](QPdfWriter&) {})) << "one job at a time";
    };
    EXPECT_FALSE(job.Start([&](QPdfWriter& writer) {
        paint(writer);
        job.Cancel();
    }));
    EXPECT_EQ(bytesOf(pdf()), "old");
    EXPECT_THROW(job.Start([](QPdfWriter&) { throw RuntimeError(11, "Division by zero"); }), RuntimeError);
    EXPECT_FALSE(job.Active());
    EXPECT_EQ(bytesOf(pdf()), "old");
    EXPECT_TRUE(job.Start(paint)) << "a new job forgets that another was cancelled";
    EXPECT_NE(bytesOf(pdf()), "old");
}

TEST_F(ReportArea, APdfThatCannotBeWrittenNamesItsPath) {
    quiet(job, folder.file("missing"));
    try {
        job.Start([](QPdfWriter&) {});
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 75);
        EXPECT_NE(error.description().find("missing"), std::string::npos);
    }
}

TEST_F(ReportArea, FolderAndNameMakeOnePath) {
    job.setFileName("A.PDF");
    for (const char* folderName : {"/data", "/data/"}) {
        job.setFilePath(folderName);
        EXPECT_EQ(job.path(), "/data/A.PDF");
    }
    job.setFilePath("\\\\server\\share\\");
    EXPECT_EQ(job.path(), "\\\\server\\share\\A.PDF");
}

TEST_F(ReportArea, AWorkbookIsWrittenAndAFaultNamesItsPath) {
    area.resize(400, 300);
    fill(area, 2, 100);
    area.AddExcelDetails({"Multiple maps", {"Start Date = 01/03/2024", "no value"}});
    const std::string path = folder.file("Report.xlsx");
    area.OutputToExcel(path);
    EXPECT_TRUE(bytesOf(QString::fromStdString(path)).startsWith("PK"));
    EXPECT_THROW(area.OutputToExcel(folder.file("missing/Report.xlsx")), RuntimeError);
    area.OuputExcelFooter(); // none in hand
}
