#pragma once

#include "map/data/DataTable.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

/// A table of figures for a grid, read only: rows as they were read.
class DataModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// By which columns are sorted: areas stand in the order in which they were read, figures by their numbers, an
    /// absent figure before all others.
    static constexpr int SortRole = Qt::UserRole;

    explicit DataModel(DataTable table, QObject* parent = nullptr);

    const DataTable& table() const { return table_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    DataTable table_;
};

/// The same, sorted by one of its columns.
class SortedData : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit SortedData(DataTable table, QObject* parent = nullptr);

    /// The table with its rows in the order of the grid.
    DataTable shownTable() const;

private:
    DataModel* data_;
};
