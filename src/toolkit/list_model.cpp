#include "toolkit/list_model.h"

namespace tallix::toolkit {

ListModel::ListModel(std::vector<ColumnHead> heads, QObject* parent)
    : QAbstractTableModel(parent), heads_(std::move(heads)) {}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Count();
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(heads_.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole || role == Qt::EditRole) return Text(index.row(), index.column());
    if (role != Qt::TextAlignmentRole) return {};
    return static_cast<int>(heads_.at(index.column()).alignment | Qt::AlignVCenter);
}

bool ListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !IsWritable(index.column())) return false;
    WriteText(index.row(), index.column(), value.toString());
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() && IsWritable(index.column()) ? flags | Qt::ItemIsEditable : flags;
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return heads_.at(section).title;
    if (role != Qt::TextAlignmentRole) return {};
    return static_cast<int>(heads_.at(section).alignment | Qt::AlignVCenter);
}

void ListModel::EmitRowChanged(int row) {
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

}  // namespace tallix::toolkit
