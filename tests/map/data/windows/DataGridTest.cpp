#include "map/data/windows/DataGrid.h"
#include "map/data/windows/DataModel.h"
#include "map/data/windows/FrozenColumn.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTest>

namespace {

/// Three areas of which every column has another order.
DataTable threeAreas() {
    return {.title = "CSG's",
            .captions = {"CSG", "TotalCalls", "Cost(£)", "Area Cost Per Answered Call"},
            .rows = {{Value("20"), Value(100), Value("£9.00"), Value()},
                     {Value("111"), Value(20), Value("£1234.50"), Value(Money{25000})},
                     {Value("Mobile"), Value(3), Value("-£2.00"), Value(Money{0})}}};
}

QString areasOf(const DataGrid& grid) {
    QStringList areas;
    for (int row = 0; row < grid.model()->rowCount(); ++row)
        areas << grid.model()->index(row, 0).data().toString();
    return areas.join(' ');
}

void clickCaption(QHeaderView& captions, int column) {
    const QPoint place(captions.sectionViewportPosition(column) + 10, captions.height() / 2);
    QTest::mouseClick(captions.viewport(), Qt::LeftButton, {}, place);
}

TEST(DataModel, KeepsTheRulesOfModels) {
    DataModel model(threeAreas());
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    SortedData sorted(threeAreas());
    const QAbstractItemModelTester sortedTester(&sorted, QAbstractItemModelTester::FailureReportingMode::Fatal);
    sorted.sort(1);
    sorted.sort(2, Qt::DescendingOrder);
    EXPECT_FALSE(model.flags(model.index(0, 1)) & Qt::ItemIsEditable);
    EXPECT_FALSE(model.setData(model.index(0, 1), 5));
    EXPECT_FALSE(model.data({}, Qt::DisplayRole).isValid());
    EXPECT_TRUE(model.index(0, 1).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignRight);
    EXPECT_TRUE(model.index(0, 0).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignLeft);
    EXPECT_EQ(model.headerData(2, Qt::Horizontal).toString(), "Cost(£)");
}

TEST(DataGrid, ACaptionSortsItsColumnByNumbers) {
    DataGrid grid(threeAreas());
    grid.resize(900, 300);
    grid.show();
    EXPECT_EQ(areasOf(grid), "20 111 Mobile") << "as they were read";
    struct Click {
        int column;
        const char* areas;
    };
    const Click clicks[] = {
        {1, "Mobile 111 20"}, {1, "20 111 Mobile"}, {2, "Mobile 20 111"}, {2, "111 20 Mobile"}, {3, "20 Mobile 111"}};
    for (const Click& click : clicks) {
        clickCaption(*grid.horizontalHeader(), click.column);
        EXPECT_EQ(areasOf(grid), click.areas) << click.column;
    }
    EXPECT_EQ(grid.shownTable().rows.back()[0], Value("111"));
    EXPECT_EQ(grid.shownTable().captions, threeAreas().captions);
    QHeaderView& areas = *grid.findChild<FrozenColumn*>()->horizontalHeader();
    clickCaption(areas, 0);
    EXPECT_EQ(areasOf(grid), "20 111 Mobile") << "the order in which they were read";
    clickCaption(areas, 0);
    EXPECT_EQ(areasOf(grid), "Mobile 111 20");
}

TEST(DataGrid, TheSelectionIsCopiedAsTextThatSpreadsheetsTake) {
    DataGrid grid(threeAreas());
    grid.resize(900, 300);
    grid.show();
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.setText("before");
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard.text(), "before") << "nothing is selected";
    const auto select = [&](int row, int column) {
        grid.selectionModel()->select(grid.model()->index(row, column), QItemSelectionModel::Select);
    };
    select(0, 0);
    select(0, 2);
    select(1, 2);
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard.text(), "20\t£9.00\n\t£1234.50");
    grid.copy(true);
    EXPECT_EQ(clipboard.text(), "CSG\tCost(£)\n20\t£9.00\n\t£1234.50");
    grid.selectAll();
    grid.copy(false);
    EXPECT_EQ(clipboard.text(), "20\t100\t£9.00\t\n111\t20\t£1234.50\t2.5\nMobile\t3\t-£2.00\t0");
}

TEST(DataGrid, TheAreaStaysInSightWhileTheFiguresScroll) {
    DataGrid grid(threeAreas());
    grid.resize(320, 300);
    grid.show();
    const auto* areas = grid.findChild<FrozenColumn*>();
    EXPECT_EQ(areas->width(), grid.columnWidth(0));
    QTest::keyClick(&grid, Qt::Key_End);
    EXPECT_GT(grid.horizontalScrollBar()->value(), 0);
    EXPECT_EQ(areas->x(), grid.frameWidth());
    for (const int height : {5, 40})
        EXPECT_TRUE(areas->isAncestorOf(grid.childAt(20, height))) << "it stands above the grid at " << height;
    grid.setCurrentIndex(grid.model()->index(0, 1));
    EXPECT_GE(grid.visualRect(grid.currentIndex()).left(), areas->width()) << "not below the areas";
    grid.horizontalHeader()->resizeSection(0, 180);
    QTest::mouseClick(areas->viewport(), Qt::LeftButton, {}, QPoint(20, 40));
    EXPECT_EQ(grid.currentIndex(), grid.model()->index(1, 0));
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.currentIndex(), grid.model()->index(2, 0));
}

TEST(DataGrid, RatesStandInWiderColumns) {
    DataTable rates = threeAreas();
    rates.rates = true;
    const DataGrid plain(threeAreas()), wide(rates);
    EXPECT_EQ(wide.columnWidth(0), plain.columnWidth(0));
    for (int column = 1; column < 4; ++column)
        EXPECT_EQ(wide.columnWidth(column), plain.columnWidth(column) + 20);
}

TEST(DataGrid, AnAreaIsFoundByTheBeginningOfItsNameOrAPartOfIt) {
    DataGrid grid(threeAreas());
    EXPECT_TRUE(grid.findArea("mob", false));
    EXPECT_EQ(grid.currentIndex().row(), 2);
    EXPECT_TRUE(grid.findArea("1", false));
    EXPECT_EQ(grid.currentIndex().row(), 1);
    EXPECT_TRUE(grid.findArea("i", true));
    EXPECT_EQ(grid.currentIndex().row(), 2);
    EXPECT_FALSE(grid.findArea("x", false));
    EXPECT_EQ(grid.currentIndex().row(), 2);
    DataGrid empty(DataTable{.captions = {"CSG"}});
    EXPECT_FALSE(empty.findArea("a", false));
}

} // namespace
