#include "map/workbook/Workbook.h"
#include "core/RuntimeError.h"
#include "map/data/DataTable.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QStandardPaths>

#include <cstdlib>
#include <filesystem>

namespace {

std::string joined(const WorkbookParameters& parameters) {
    std::string text;
    for (const ParameterLine& line : parameterLines(parameters))
        text += line.name + "|" + line.value + "\n";
    return text;
}

DataTable smallTable() {
    return {.captions = {"TVRegion", "TotalCalls", "Cost(£)", "Population"},
            .rows = {{Value("London"), Value(12), Value("£1234.50"), Value(2.5)},
                     {Value("Border & \"Tyne\" <1>"), Value(), Value("£0.00"), Value()}}};
}

QImage smallPicture(double ratio = 1) {
    QImage picture(60, 40, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

/// The parts of a workbook that was written, by their names inside the file.
class Parts {
public:
    explicit Parts(const std::string& path) : path_(QString::fromStdString(path)) {}

    std::string operator[](const char* name) const { return run({"-p", path_, name}); }
    std::string names() const { return run({"-Z1", path_}); }

private:
    static std::string run(const QStringList& arguments) {
        QProcess unzip;
        unzip.start(QStringLiteral("unzip"), arguments);
        EXPECT_TRUE(unzip.waitForFinished());
        return unzip.readAllStandardOutput().toStdString();
    }
    QString path_;
};

bool has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

double numberBehind(const std::string& text, const std::string& mark) {
    const std::size_t at = text.find(mark);
    return at == std::string::npos ? -1 : std::strtod(text.c_str() + at + mark.size(), nullptr);
}

class WorkbookTest : public testing::Test {
protected:
    void SetUp() override {
        if (QStandardPaths::findExecutable(QStringLiteral("unzip")).isEmpty())
            GTEST_SKIP() << "unzip is not installed";
    }
    const TemporaryFolder folder;
    const std::string path = folder.file("map.xlsx");
    const WorkbookParameters parameters{"01/02/2026", "00:00:00", "28/02/2026", "23:59:59", "Called No = 0800 1"};
};

TEST(ParameterLines, ThereIsOneForEachLineOfTheDescription) {
    struct Case {
        const char* description;
        const char* lines;
    };
    const Case cases[] = {
        {"", ""},
        {"Called No = 0800 1\r\nDestination ID = X=Y\r\nOvernight", "Called No =|0800 1\nDestination ID =|X=Y\n"},
        {"no equals sign\r\n\r\n", "no equals sign|\n"},
        {"Overnight\r\n\nAnswer Point = Leeds ", "Answer Point =|Leeds\n"},
        {"Answer Point =", "Answer Point =|\n"},
    };
    for (const Case& test : cases)
        EXPECT_EQ(joined({"1", "2", "3", "4", test.description}),
                  std::string("Start Date=|1\nStart Time=|2\nEnd Date=|3\nEnd Time=|4\n") + test.lines)
            << test.description;
}

TEST_F(WorkbookTest, TheDataStandBelowAHeaderInTheCorporateColour) {
    writeDataWorkbook(path, parameters, smallTable());
    const Parts parts(path);
    EXPECT_TRUE(has(parts["xl/workbook.xml"], R"(<sheet name="Parameters" sheetId="1")"));
    EXPECT_TRUE(has(parts["xl/workbook.xml"], R"(<sheet name="Data" sheetId="2")"));
    EXPECT_TRUE(has(parts["xl/workbook.xml"], R"(activeTab="1")")) << "Data is selected";
    const std::string data = parts["xl/worksheets/sheet2.xml"];
    EXPECT_TRUE(has(data, R"(<dimension ref="A1:D3"/>)")) << data;
    EXPECT_TRUE(has(data, "<v>12</v>")) << "counts are numbers";
    EXPECT_FALSE(has(data, "<v>1234.5</v>")) << "money is the text of the grid";
    const std::string texts = parts["xl/sharedStrings.xml"];
    for (const char* text : {"Map Parameters:", "Start Date=", "01/02/2026", "Called No =", "0800 1", "Cost(£)",
                             "£1234.50", "£0.00", "Border &amp; \"Tyne\" &lt;1&gt;"})
        EXPECT_TRUE(has(texts, std::string(">") + text + "<")) << text;
    const std::string styles = parts["xl/styles.xml"];
    EXPECT_TRUE(has(styles, R"(<patternFill patternType="solid"><fgColor rgb="FF5514B4"/>)")) << styles;
    EXPECT_TRUE(has(styles, R"(<color rgb="FFFFFFFF"/>)"));
    EXPECT_TRUE(has(styles, R"(horizontal="left" wrapText="1")")) << styles;
    EXPECT_TRUE(has(styles, R"(horizontal="right" wrapText="1")")) << styles;
}

TEST_F(WorkbookTest, TheMapStandsAtItsSizeOnTheScreen) {
    writeMapWorkbook(path, parameters, smallPicture(2));
    const Parts parts(path);
    EXPECT_TRUE(has(parts["xl/workbook.xml"], R"(<sheet name="Parameters" sheetId="1")"));
    EXPECT_TRUE(has(parts["xl/workbook.xml"], R"(<sheet name="Map" sheetId="2")"));
    EXPECT_FALSE(has(parts["xl/workbook.xml"], "activeTab")) << "Parameters is selected";
    EXPECT_TRUE(has(parts.names(), "xl/media/image1.png"));
    const std::string drawing = parts["xl/drawings/drawing1.xml"];
    constexpr double unitsOfAPixel = 9525;
    EXPECT_NEAR(numberBehind(drawing, "cx=\"") / unitsOfAPixel, 30, 0.1) << drawing;
    EXPECT_NEAR(numberBehind(drawing, "cy=\"") / unitsOfAPixel, 20, 0.1);
}

TEST_F(WorkbookTest, BothCanStandInOneBook) {
    writeWorkbook(path, parameters, smallTable(), smallPicture());
    EXPECT_TRUE(has(Parts(path)["xl/workbook.xml"], R"(<sheet name="Map" sheetId="3")"));
    writeWorkbook(path, parameters, smallTable(), {});
    EXPECT_FALSE(has(Parts(path)["xl/workbook.xml"], "Map\""));
}

TEST_F(WorkbookTest, SaysWhichFileCannotBeWritten) {
    const std::string nowhere = folder.file("none/map.xlsx");
    const auto refuses = [&](const char* name, auto write) {
        SCOPED_TRACE(name);
        try {
            write();
            FAIL() << "written into a folder that is not there";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), 75);
            EXPECT_NE(error.description().find(nowhere), std::string::npos);
        }
    };
    refuses("data", [&] { writeDataWorkbook(nowhere, parameters, smallTable()); });
    refuses("map", [&] { writeMapWorkbook(nowhere, parameters, smallPicture()); });
    EXPECT_THROW(writeMapWorkbook(path, parameters, QImage()), RuntimeError);
    EXPECT_FALSE(std::filesystem::exists(path)) << "no picture, no workbook";
}

} // namespace
