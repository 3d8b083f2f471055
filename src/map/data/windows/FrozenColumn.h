#pragma once

#include <QTableView>

/// The first column of a grid, standing over it so that it stays in sight while the grid is scrolled sideways. It
/// shares model, selection and keyboard with the grid.
class FrozenColumn : public QTableView {
    Q_OBJECT

public:
    explicit FrozenColumn(QTableView& grid);

    /// Takes over what the grid shows and looks like; once, after the grid has its model and column widths.
    void follow();
    /// Stands where the grid has its first column.
    void place();

private:
    QTableView& grid_;
};
