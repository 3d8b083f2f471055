#pragma once

#include "map/data/DataTable.h"

#include <QTableView>

class FrozenColumn;
class SortedData;

/// A grid of figures: sorted by a click on a caption, its first column always in sight, copied as text. Widths are
/// device-independent pixels.
class DataGrid : public QTableView {
    Q_OBJECT

public:
    explicit DataGrid(DataTable table, QWidget* parent = nullptr);

    /// The table with its rows in the order of the grid.
    DataTable shownTable() const;
    int columnsWidth() const;
    int rowsHeight() const; ///< of all rows and the captions

    /// Goes to the next area, after the current row if `next`, whose name begins with `text`, else to one that holds
    /// it. False where there is none: the current cell stays.
    bool findArea(const QString& text, bool next);

    /// The selected cells to the clipboard, columns parted by tabs; `withCaptions`: below a line of captions.
    void copy(bool withCaptions) const;

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;

private:
    void addCopyActions();
    void fitColumns(const DataTable& table);
    int widthOf(const DataTable& table, int column) const;

    SortedData* sorted_;
    FrozenColumn* frozen_;
};
