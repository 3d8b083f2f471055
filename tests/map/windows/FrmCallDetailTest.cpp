#include "map/windows/FrmCallDetail.h"

#include "core/ModDeclarations.h"
#include "map/windows/ExchangeList.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/TemporaryFolder.h"
#include "ui/OpenDocument.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>

namespace {

AreaDetail someDetail() {
    AreaDetail detail;
    detail.title = "TV Region = Granada";
    detail.listHeading = "Exchanges included in this TV Area";
    detail.exchanges = {"BURY", "BOLTON", "WIGAN"};
    detail.answered = "Answered calls = 12";
    detail.engaged = "Ineffective engaged = 3";
    detail.rtnr = "Ineffective RTNR = 2";
    detail.other = "Ineffective other = 1";
    detail.ineffective = "Total Ineffective = 6";
    detail.cost = "Cost\\(Revenue) = £1.000\\(£0.000)";
    detail.answeredCallers = "Answered Callers = 9";
    return detail;
}

TEST(FrmCallDetail, ShowsWhatThereIsAndNothingElse) {
    FrmCallDetail window(someDetail(), "");
    window.show();
    EXPECT_EQ(window.findChild<QLabel*>("lblAnsweredCallers")->text(), "Answered Callers = 9");
    EXPECT_EQ(window.findChild<QLabel*>("lblLostCallers"), nullptr);
    EXPECT_EQ(window.findChild<QLabel*>("lblPopulation"), nullptr);
    EXPECT_EQ(window.findChild<QLabel*>("lblCostPerResponse"), nullptr);
    AreaDetail hidden = someDetail();
    hidden.listHeading.reset();
    const FrmCallDetail withoutList(hidden, "");
    EXPECT_EQ(withoutList.findChild<ExchangeList*>("List1"), nullptr);
}

TEST(FrmCallDetail, TheListIsSearchedByTypingAndCopied) {
    FrmCallDetail window(someDetail(), "");
    window.show();
    auto* list = window.findChild<ExchangeList*>("List1");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->item(0)->text(), "BURY") << "the order given stays";
    QTest::keyClicks(list, "wi");
    EXPECT_EQ(list->currentItem()->text(), "WIGAN");
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "WIGAN");
    list->clearSelection();
    QTest::keyClicks(window.findChild<QLineEdit*>("txtFind"), "b");
    EXPECT_TRUE(list->item(2)->isHidden());
    list->copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "BURY\nBOLTON");
}

TEST(FrmCallDetail, EscapeAndTheExitButtonCloseIt) {
    FrmCallDetail window(someDetail(), "");
    window.show();
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    window.show();
    QTest::mouseClick(window.findChild<QPushButton*>("CmdExit"), Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
}

TEST(FrmCallDetail, WithoutAProgramForWorkbooksTheUserIsToldWhereItIs) {
    const TemporaryFolder home;
    qputenv("HOME", home.path().string().c_str());
    ScriptedPrompts prompts;
    std::vector<std::string> opened;
    setDocumentOpener([&](const std::string& path) {
        opened.push_back(path);
        return false;
    });
    FrmCallDetail window(someDetail(), "");
    window.show();
    auto* excel = window.findChild<QAbstractButton*>("lblExcel");
    excel->click();
    excel->click();
    setDocumentOpener({});
    ASSERT_EQ(opened.size(), 2U);
    EXPECT_NE(opened[0], opened[1]) << "the first stays";
    for (const std::string& path : opened)
        EXPECT_TRUE(QFile::exists(QString::fromStdString(path))) << path;
    EXPECT_EQ(prompts.texts.back(), "The document has been saved as " + opened[1]);
}

TEST(FrmCallDetail, TheWorkbookReadsBackInASpreadsheet) {
    const QString office = QStandardPaths::findExecutable("soffice");
    if (office.isEmpty())
        GTEST_SKIP() << "LibreOffice is not installed";
    const TemporaryFolder folder;
    gsBoundaryType = "TVRegion";
    FrmCallDetail(someDetail(), "Called No = 0800 1\r\nOvernight").saveWorkbook(folder.file("area.xlsx"));
    QProcess convert;
    convert.start(office,
                  {"-env:UserInstallation=file://" + QString::fromStdString(folder.file("profile")), "--headless",
                   "--convert-to", "csv:Text - txt - csv (StarCalc):59,34,76", "--outdir",
                   QString::fromStdString(folder.path().string()), QString::fromStdString(folder.file("area.xlsx"))});
    ASSERT_TRUE(convert.waitForFinished(120000));
    QFile csv(QString::fromStdString(folder.file("area.csv")));
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly)) << convert.readAll().toStdString();
    const std::string text = csv.readAll().toStdString();
    EXPECT_NE(text.find("TV Region = Granada\nCalled No = 0800 1\nOvernight"), std::string::npos) << text;
    EXPECT_NE(text.find("TV Region = Granada;Exchange\nAnswered calls = 12;BURY\nIneffective engaged = 3;BOLTON\n"),
              std::string::npos)
        << text;
}

} // namespace
