#include "map/data/windows/FrmData.h"

#include "core/ModDeclarations.h"
#include "map/data/DataStatement.h"
#include "map/data/windows/DataGrid.h"
#include "map/data/windows/MapOutput.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/TemporaryFolder.h"
#include "ui/OpenDocument.h"
#include "ui/Skin.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QTest>

namespace {

/// As many areas as there are postcode districts; the figures go down while the names go up.
DataTable districts(int count) {
    DataTable table{.title = "Post Code Districts",
                    .captions = {"PostCodeDistrict", "TotalCalls", "Answered", "Ineffective", "Cost(£)", "Revenue(£)",
                                 "Engaged", "RTNR", "Other", "LostCallers", "AnsweredCallers",
                                 "Area Cost Per Answered Call", "Area Cost Per Answered Caller", "Population"}};
    for (int i = 0; i < count; ++i) {
        std::vector<Value> row{Value("AB" + std::to_string(1000 + i))};
        for (std::size_t column = 1; column < table.captions.size(); ++column)
            row.emplace_back(count - i);
        row[4] = Value("£" + std::to_string(count - i) + ".50");
        table.rows.push_back(std::move(row));
    }
    return table;
}

const WorkbookParameters february{"01/02/2026", "00:00:00", "28/02/2026", "23:59:59",
                                  "Called No = 0800 1\r\nOvernight"};

/// Stands in the place of the program that the desktop has for documents.
class Documents {
public:
    Documents() {
        qputenv("HOME", home_.path().string().c_str());
        setDocumentOpener([this](const std::string& path) {
            opened.push_back(path);
            return true;
        });
    }
    ~Documents() { setDocumentOpener({}); }
    std::vector<std::string> opened;

private:
    TemporaryFolder home_;
};

TEST(FrmData, ShowsTheAreasAndFindsThemByName) {
    FrmData window(districts(2800), february);
    window.show();
    auto* grid = window.findChild<DataGrid*>("grdData");
    EXPECT_EQ(grid->model()->rowCount(), 2800);
    auto* rows = window.findChild<QLabel*>("lblRows");
    EXPECT_EQ(rows->text(), "2,800 areas");
    auto* search = window.findChild<QLineEdit*>("txtFind");
    QTest::keyClicks(search, "ab2");
    EXPECT_EQ(grid->currentIndex().data().toString(), "AB2000");
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(grid->currentIndex().data().toString(), "AB2001");
    EXPECT_TRUE(window.isVisible()) << "Return is not the Close button";
    QTest::keyClicks(search, "x");
    EXPECT_EQ(rows->text(), "No area has this name");
    search->clear();
    EXPECT_EQ(rows->text(), "2,800 areas");
    grid->setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(grid, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(search->hasFocus());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    window.show();
    QTest::mouseClick(window.findChild<QPushButton*>("CmdClose"), Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
}

TEST(FrmData, IsAsWideAsItsColumnsAndNoWiderThanTheScreen) {
    DataTable few = districts(3);
    for (auto& row : few.rows)
        row.resize(6);
    few.captions.resize(6);
    FrmData narrow(few, february);
    narrow.show();
    EXPECT_EQ(narrow.width(), narrow.findChild<DataGrid*>()->columnsWidth() + 103);
    FrmData wide(districts(100), february);
    wide.show();
    EXPECT_EQ(wide.width(), std::min(wide.findChild<DataGrid*>()->columnsWidth() + 103, wide.screen()->size().width()));
    EXPECT_LE(wide.height(), wide.screen()->size().height());
}

TEST(FrmData, TheWorkbookHasTheRowsInTheOrderOfTheGrid) {
    const QString office = QStandardPaths::findExecutable("soffice");
    if (office.isEmpty())
        GTEST_SKIP() << "LibreOffice is not installed";
    const TemporaryFolder folder;
    FrmData window(districts(3), february);
    window.findChild<DataGrid*>()->horizontalHeader()->setSortIndicator(1, Qt::AscendingOrder);
    window.saveWorkbook(folder.file("data.xlsx"));
    QProcess convert;
    convert.start(office, {"-env:UserInstallation=file://" + QString::fromStdString(folder.file("profile")),
                           "--headless", "--convert-to",
                           "csv:Text - txt - csv (StarCalc):59,34,76,1,,0,false,true,false,false,false,-1", "--outdir",
                           QString::fromStdString(folder.text()), QString::fromStdString(folder.file("data.xlsx"))});
    ASSERT_TRUE(convert.waitForFinished(120000));
    const auto sheet = [&](const char* name) {
        QFile csv(QString::fromStdString(folder.file(std::string("data-") + name + ".csv")));
        EXPECT_TRUE(csv.open(QIODevice::ReadOnly)) << convert.readAll().toStdString();
        return csv.readAll().toStdString();
    };
    EXPECT_EQ(sheet("Parameters"), "Map Parameters:;\nStart Date=;01/02/2026\nStart Time=;00:00:00\nEnd Date=;"
                                   "28/02/2026\nEnd Time=;23:59:59\nCalled No =;0800 1\n");
    EXPECT_EQ(sheet("Data"),
              "PostCodeDistrict;TotalCalls;Answered;Ineffective;Cost(£);Revenue(£);Engaged;RTNR;Other;LostCallers;"
              "AnsweredCallers;Area Cost Per Answered Call;Area Cost Per Answered Caller;Population\n"
              "AB1002;1;1;1;£1.50;1;1;1;1;1;1;1;1;1\nAB1001;2;2;2;£2.50;2;2;2;2;2;2;2;2;2\n"
              "AB1000;3;3;3;£3.50;3;3;3;3;3;3;3;3;3\n");
}

TEST(FrmData, ExcelSavesANewWorkbookAndOpensIt) {
    const ScriptedPrompts prompts;
    Documents documents;
    FrmData window(districts(3), february);
    window.show();
    auto* excel = window.findChild<QAbstractButton*>("lblExcel");
    excel->click();
    excel->click();
    ASSERT_EQ(documents.opened.size(), 2U);
    EXPECT_NE(documents.opened[0], documents.opened[1]) << "the first stays";
    EXPECT_TRUE(QFile::exists(QString::fromStdString(documents.opened[1])));
    EXPECT_TRUE(prompts.texts.empty());
}

TEST(MapOutput, ThePictureGoesToAWorkbookOfItsOwn) {
    const ScriptedPrompts prompts;
    Documents documents;
    QImage picture(20, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    gsCurrentProc = "before";
    outputMapPicture(february, picture);
    ASSERT_EQ(documents.opened.size(), 1U);
    EXPECT_TRUE(QFile::exists(QString::fromStdString(documents.opened[0])));
    outputMapPicture(february, {});
    EXPECT_EQ(documents.opened.size(), 1U);
    ASSERT_EQ(prompts.texts.size(), 1U);
    EXPECT_TRUE(prompts.texts[0].starts_with("There is no picture of the map")) << prompts.texts[0];
    EXPECT_EQ(gsCurrentProc, "before");
}

TEST(MapOutput, FiguresThatCannotBeReadAreToldAndShowNoWindow) {
    const ScriptedPrompts prompts;
    viewMapData({.boundary = 2, .table = ""}, february, nullptr);
    ASSERT_EQ(prompts.texts.size(), 1U);
    viewMapData({.boundary = 2, .table = "TblTV"}, february, nullptr); // no database is open
    EXPECT_EQ(prompts.texts.size(), 2U);
}

} // namespace
