#include "map/data/windows/DataGrid.h"

#include "map/data/windows/CaptionRow.h"
#include "map/data/windows/DataModel.h"
#include "map/data/windows/FrozenColumn.h"
#include "ui/Skin.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>
#include <set>

namespace {

constexpr int lineHeight = 26;
constexpr int leastColumn = 64, leastAreaColumn = 130;
constexpr int widerForRates = 20;
constexpr int cellMargin = 8, gridLine = 2, captionPadding = 26; ///< of a caption with the mark of sorting

/// Draws a cell with air beside its text, in a colour of its own where the grid is sorted by its column.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        const QStyle& style = *cell.widget->style();
        style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
        const bool selected = cell.state.testFlag(QStyle::State_Selected);
        const QRect room = cell.rect.adjusted(cellMargin, 0, -cellMargin, 0);
        const QString text = cell.fontMetrics.elidedText(cell.text, Qt::ElideRight, room.width());
        style.drawItemText(painter, room, static_cast<int>(cell.displayAlignment), cell.palette, true, text,
                           selected ? QPalette::HighlightedText : QPalette::Text);
        if (cell.state.testFlag(QStyle::State_HasFocus))
            drawFocus(*painter, cell.rect, selected);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto* sorted = qobject_cast<const SortedData*>(index.model());
        if (sorted && sorted->sortColumn() == index.column())
            option->backgroundBrush = toColor(skinColours().GridSortColour());
    }

private:
    static void drawFocus(QPainter& painter, const QRect& cell, bool selected) {
        painter.save();
        painter.setPen(QPen(toColor(skinColours().Turquoise(selected ? 3 : 5)), 2));
        painter.drawRect(cell.adjusted(1, 1, -1, -1));
        painter.restore();
    }
};

QString textOf(const Value& value) {
    return QString::fromStdString(value.asText());
}

/// The width that a caption takes on two lines, or on one where it is a single word.
int captionWidth(const QFontMetrics& metrics, const QString& caption) {
    int least = metrics.horizontalAdvance(caption);
    for (qsizetype blank = caption.indexOf(' '); blank >= 0; blank = caption.indexOf(' ', blank + 1))
        least = std::min(least, std::max(metrics.horizontalAdvance(caption.left(blank)),
                                         metrics.horizontalAdvance(caption.mid(blank + 1))));
    return least;
}

} // namespace

DataGrid::DataGrid(DataTable table, QWidget* parent)
    : QTableView(parent), sorted_(new SortedData(table, this)), frozen_(new FrozenColumn(*this)) {
    setModel(sorted_);
    setItemDelegate(new CellDelegate(this));
    setSelectionMode(ExtendedSelection);
    setAlternatingRowColors(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setCornerWidget(new QWidget(this));
    setHorizontalHeader(new CaptionRow(this));
    setTabKeyNavigation(false); // Tab leaves the grid
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(lineHeight);
    addCopyActions();
    fitColumns(table);
    sortByColumn(0, Qt::AscendingOrder);
    setSortingEnabled(true);
    frozen_->follow();
    if (sorted_->rowCount() > 0)
        setCurrentIndex(sorted_->index(0, 0));
    clearSelection();
}

void DataGrid::addCopyActions() {
    const auto add = [this](const QString& text, const QKeySequence& keys, auto run) {
        auto* action = new QAction(text, this);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, run);
        addAction(action);
    };
    add(tr("&Copy"), QKeySequence::Copy, [this] { copy(false); });
    add(tr("Copy with Ca&ptions"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), [this] { copy(true); });
    add(tr("Select &All"), QKeySequence::SelectAll, [this] { selectAll(); });
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

int DataGrid::widthOf(const DataTable& table, int column) const {
    // Of figures the one with the most digits stands for all: measuring each would be felt with thousands of rows.
    int width = 0;
    QString longest;
    for (const std::vector<Value>& row : table.rows) {
        const QString text = textOf(row[column]);
        if (column > 0 && text.size() <= longest.size())
            continue;
        longest = text;
        width = std::max(width, fontMetrics().horizontalAdvance(text));
    }
    return width + 2 * cellMargin + gridLine;
}

void DataGrid::fitColumns(const DataTable& table) {
    ensurePolished();
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics captions(bold);
    bool onTwoLines = false;
    for (int column = 0; column < sorted_->columnCount(); ++column) {
        const QString caption = QString::fromStdString(table.captions[column]);
        const int wanted = captionWidth(captions, caption);
        onTwoLines |= wanted < captions.horizontalAdvance(caption);
        const int least = column == 0 ? leastAreaColumn : leastColumn;
        const int width = std::max({least, wanted + captionPadding, widthOf(table, column)});
        setColumnWidth(column, width + (table.rates && column > 0 ? widerForRates : 0));
    }
    horizontalHeader()->setFixedHeight(captions.lineSpacing() * (onTwoLines ? 2 : 1) + 14);
}

DataTable DataGrid::shownTable() const {
    return sorted_->shownTable();
}

int DataGrid::columnsWidth() const {
    return horizontalHeader()->length();
}

int DataGrid::rowsHeight() const {
    return verticalHeader()->length() + horizontalHeader()->height();
}

bool DataGrid::findArea(const QString& text, bool next) {
    if (text.isEmpty() || sorted_->rowCount() == 0)
        return false;
    const QModelIndex from =
        sorted_->index((std::max(currentIndex().row(), 0) + (next ? 1 : 0)) % sorted_->rowCount(), 0);
    for (const Qt::MatchFlag kind : {Qt::MatchStartsWith, Qt::MatchContains}) {
        const QModelIndexList found = sorted_->match(from, Qt::DisplayRole, text, 1, kind | Qt::MatchWrap);
        if (found.isEmpty())
            continue;
        setCurrentIndex(found.first());
        selectRow(found.first().row());
        return true;
    }
    return false;
}

void DataGrid::copy(bool withCaptions) const {
    std::set<int> rows, columns;
    const QItemSelection chosen = selectionModel()->selection();
    for (const QItemSelectionRange& range : chosen) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.insert(row);
        for (int column = range.left(); column <= range.right(); ++column)
            columns.insert(column);
    }
    if (rows.empty())
        return;
    QStringList lines;
    const auto addLine = [&](auto text) {
        QStringList cells;
        for (const int column : columns)
            cells << text(column);
        lines << cells.join('\t');
    };
    if (withCaptions)
        addLine([&](int column) { return sorted_->headerData(column, Qt::Horizontal).toString(); });
    for (const int row : rows)
        addLine([&](int column) {
            const QModelIndex cell = sorted_->index(row, column);
            return chosen.contains(cell) ? cell.data().toString() : QString();
        });
    QGuiApplication::clipboard()->setText(lines.join('\n'));
}

void DataGrid::scrollTo(const QModelIndex& index, ScrollHint hint) {
    QScrollBar* sideways = horizontalScrollBar();
    const int before = sideways->value();
    QTableView::scrollTo(index, hint);
    if (index.column() == 0) {
        sideways->setValue(before); // the first column is in sight anyway
        return;
    }
    const int hidden = frozen_->width() - visualRect(index).left();
    if (hidden > 0)
        sideways->setValue(sideways->value() - hidden);
}

void DataGrid::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        copy(false);
    else
        QTableView::keyPressEvent(event);
}

void DataGrid::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    frozen_->place();
}

void DataGrid::updateGeometries() {
    QTableView::updateGeometries();
    if (frozen_)
        frozen_->place();
}
