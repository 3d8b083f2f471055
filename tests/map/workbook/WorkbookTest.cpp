#include "map/workbook/Workbook.h"
#include "core/RuntimeError.h"
#include "data/engine/Database.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

std::string joined(const WorkbookParameters& parameters) {
    std::string text;
    for (const ParameterLine& line : parameterLines(parameters))
        text += line.name + "|" + line.value + "\n";
    return text;
}

TEST(Workbook, NamesTheParametersOnePerLine) {
    const std::string period = "Start Date=|1\nStart Time=|2\nEnd Date=|3\nEnd Time=|4\n";
    WorkbookParameters parameters{"1", "2", "3", "4", ""};
    EXPECT_EQ(joined(parameters), period);
    parameters.selectionDescription = "Called No = 0800 1\r\nDestination ID = X=Y\r\nOvernight";
    EXPECT_EQ(joined(parameters), period + "Called No =|0800 1\nDestination ID =|X=Y\n");
    parameters.selectionDescription = "no equals sign\r\n\r\n";
    EXPECT_EQ(joined(parameters), period + "no equals sign|\n");
}

TEST(Workbook, SaysWhichFileCannotBeWritten) {
    const TemporaryFolder folder;
    const auto database = Workspace::create()->createDatabase(folder.file("a.mdb"));
    database->execute("CREATE TABLE T (Name Text(50), N Long)");
    database->execute("INSERT INTO T VALUES ('London', 5)");
    const auto rows = database->openRecordset("T");
    const std::string nowhere = folder.file("none/map.xlsx");
    try {
        writeWorkbook(nowhere, {}, *rows);
        FAIL() << "written into a folder that is not there";
    } catch (const RuntimeError& error) {
        EXPECT_NE(error.description().find(nowhere), std::string::npos);
    }
    rows->Requery();
    writeWorkbook(folder.file("map.xlsx"), {}, *rows);
    EXPECT_GT(std::filesystem::file_size(folder.file("map.xlsx")), 3000u);
    rows->Requery();
    const unsigned char noPicture[] = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_THROW(writeWorkbook(folder.file("bad.xlsx"), {}, *rows, noPicture), RuntimeError);
}

} // namespace
