#include "map/data/windows/FrozenColumn.h"

#include "map/data/windows/CaptionRow.h"

#include <QScrollBar>

FrozenColumn::FrozenColumn(QTableView& grid) : QTableView(&grid), grid_(grid) {
    setObjectName(QStringLiteral("frozenColumn"));
    setFocusProxy(&grid);
    setFrameShape(QFrame::NoFrame);
    setStyleSheet(QStringLiteral("QTableView { border: none; }"));
    setHorizontalHeader(new CaptionRow(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    connect(grid.verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(), &QScrollBar::setValue);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, grid.verticalScrollBar(), &QScrollBar::setValue);
}

void FrozenColumn::follow() {
    QHeaderView* captions = grid_.horizontalHeader();
    setModel(grid_.model());
    setSelectionModel(grid_.selectionModel());
    setSelectionMode(grid_.selectionMode());
    setItemDelegate(grid_.itemDelegate());
    setAlternatingRowColors(grid_.alternatingRowColors());
    setContextMenuPolicy(grid_.contextMenuPolicy());
    addActions(grid_.actions());
    verticalHeader()->setDefaultSectionSize(grid_.verticalHeader()->defaultSectionSize());
    horizontalHeader()->setFixedHeight(captions->height());
    for (int column = 1; column < model()->columnCount(); ++column)
        setColumnHidden(column, true);
    setColumnWidth(0, grid_.columnWidth(0));
    horizontalHeader()->setSortIndicator(captions->sortIndicatorSection(), captions->sortIndicatorOrder());

    connect(captions, &QHeaderView::sortIndicatorChanged, horizontalHeader(), &QHeaderView::setSortIndicator);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [captions](int column) {
        const bool again = captions->sortIndicatorSection() == column;
        const bool ascending = !again || captions->sortIndicatorOrder() == Qt::DescendingOrder;
        captions->setSortIndicator(column, ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
    });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (column == 0)
            grid_.setColumnWidth(0, width);
        place();
    });
    raise(); // above the captions of the grid
    place();
}

void FrozenColumn::place() {
    const int frame = grid_.frameWidth();
    setGeometry(frame, frame, columnWidth(0), grid_.horizontalHeader()->height() + grid_.viewport()->height());
}
