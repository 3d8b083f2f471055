#include "map/data/windows/DataModel.h"

#include <limits>

DataModel::DataModel(DataTable table, QObject* parent) : QAbstractTableModel(parent), table_(std::move(table)) {}

int DataModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.rows.size());
}

int DataModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.captions.size());
}

QVariant DataModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const Value& value = table_.rows[index.row()][index.column()];
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromStdString(value.asText());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue<Qt::Alignment>(Qt::AlignVCenter |
                                                  (index.column() == 0 ? Qt::AlignLeft : Qt::AlignRight));
    case SortRole:
        if (index.column() == 0)
            return index.row();
        return numberOf(value).value_or(-std::numeric_limits<double>::infinity());
    default:
        return {};
    }
}

QVariant DataModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return QAbstractTableModel::headerData(section, orientation, role);
    if (role == Qt::DisplayRole)
        return QString::fromStdString(table_.captions[section]);
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignVCenter | Qt::TextWordWrap) |
               static_cast<int>(section == 0 ? Qt::AlignLeft : Qt::AlignRight);
    return {};
}

SortedData::SortedData(DataTable table, QObject* parent)
    : QSortFilterProxyModel(parent), data_(new DataModel(std::move(table), this)) {
    setSortRole(DataModel::SortRole);
    setSourceModel(data_);
}

DataTable SortedData::shownTable() const {
    const DataTable& source = data_->table();
    DataTable shown{.title = source.title, .captions = source.captions, .rows = {}, .rates = source.rates};
    shown.rows.reserve(source.rows.size());
    for (int row = 0; row < rowCount(); ++row)
        shown.rows.push_back(source.rows[mapToSource(index(row, 0)).row()]);
    return shown;
}
