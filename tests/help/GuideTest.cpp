#include "core/RuntimeError.h"
#include "help/GuideBook.h"
#include "help/GuideFiles.h"
#include "help/HelpWindow.h"
#include "help/OpenHelp.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTextBrowser>

namespace {

QByteArray bytesOf(const std::string& path) {
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList matches(const QString& text, const char* pattern) {
    QStringList found;
    for (auto it = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text); it.hasNext();)
        found.append(it.next().captured(1));
    return found;
}

} // namespace

TEST(Guide, LinksAndPicturesLeadSomewhere) {
    for (const GuidePage& page : guidePages()) {
        EXPECT_FALSE(page.title.isEmpty()) << page.id.toStdString();
        for (const QString& id : matches(page.html, "href=\"guide:([^\"]*)\""))
            EXPECT_EQ(guidePage(id).id, id);
        for (const QString& name : matches(page.html, "src=\"([^\"]*)\""))
            EXPECT_FALSE(QImage(guidePicturePath(name)).isNull()) << name.toStdString();
    }
}

TEST(Guide, EveryWindowHasAPage) {
    for (const char* window : {"FrmMain", "FrmMap", "FrmCallDetail", "FrmData", "FrmAnimate", "FrmMultiMap",
                               "frmGroups", "frmGroupSelection", "frmTools"}) {
        const QString id = guidePageOfWindow(window);
        EXPECT_EQ(guidePage(id).id, id) << window;
    }
    EXPECT_EQ(guidePageOfWindow("unknown"), guidePages().front().id);
}

TEST(Guide, ASearchFindsAllWordsHeadingsFirst) {
    const auto found = searchGuide("population");
    ASSERT_GT(found.size(), 1U);
    EXPECT_EQ(found.front()->id, "population");
    EXPECT_TRUE(searchGuide("population zebra").empty());
    EXPECT_TRUE(searchGuide("href").empty()) << "marks of the page are not its text";
    EXPECT_EQ(searchGuide("  ").size(), guidePages().size());
}

TEST(Guide, BothFilesHaveTheWholeGuide) {
    const TemporaryFolder folder;
    writeGuideFiles(folder.text());
    const QByteArray pdf = bytesOf(folder.file("CallscopeMapping.pdf"));
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_EQ(pdf.count("/Type /Page\n"), static_cast<qsizetype>(guidePages().size())) << "no page is empty";
    const QString text = QString::fromUtf8(bytesOf(folder.file("CallscopeMapping.txt")));
    for (const GuidePage& page : guidePages())
        EXPECT_TRUE(text.contains(page.title)) << page.title.toStdString();
    for (const QString& line : text.split('\n'))
        EXPECT_LE(line.size(), 78);
    EXPECT_THROW(writeGuideFiles(folder.file("missing")), RuntimeError);
}

TEST(HelpWindow, SearchContentsAndHistoryLeadToPages) {
    HelpWindow help;
    help.showPage("map");
    EXPECT_TRUE(help.browser->toPlainText().contains("Map Colour Key"));
    EXPECT_EQ(help.lstContents->currentItem()->text(), "The map");
    help.txtSearch->setText("animation");
    ASSERT_GT(help.lstContents->count(), 0);
    EXPECT_EQ(help.browser->source().path(), "map") << "typing must not turn the page";
    help.lstContents->setCurrentRow(0);
    EXPECT_EQ(help.browser->source().path(), "animation");
    help.txtSearch->setText("population");
    emit help.txtSearch->returnPressed();
    EXPECT_EQ(help.browser->source().path(), "population");
    help.browser->backward();
    help.browser->backward();
    EXPECT_EQ(help.browser->source().path(), "map");
}

TEST(HelpWindow, BelongsToTheWindowThatAskedLast) {
    QWidget main;
    main.setObjectName("FrmMain");
    QDialog map;
    map.setObjectName("FrmMap");
    openHelp(main);
    openHelp(main);
    ASSERT_EQ(main.findChildren<HelpWindow*>().size(), 1);
    map.setModal(true);
    map.show();
    openHelp(map);
    EXPECT_TRUE(main.findChildren<HelpWindow*>().isEmpty());
    auto* help = map.findChild<HelpWindow*>();
    ASSERT_TRUE(help);
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(help->browser->source().path(), "map");
}
