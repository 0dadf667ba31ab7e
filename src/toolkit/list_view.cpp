#include "toolkit/list_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "toolkit/style.h"

namespace tallix::toolkit {
namespace {

constexpr int kTwipsPerDigit = 90;
constexpr int kRowsInView = 12;

/// Gives the rows some air.
class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kGrid);
    }
};

}  // namespace

ListRows::ListRows(std::vector<ListColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(std::move(columns)) {}

void ListRows::Set(std::vector<ListRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

void ListRows::Append(ListRow row) {
    beginInsertRows({}, Count(), Count());
    rows_.push_back(std::move(row));
    endInsertRows();
}

void ListRows::Remove(int row) {
    beginRemoveRows({}, row, row);
    rows_.erase(rows_.begin() + row);
    endRemoveRows();
}

QString ListRows::Text(int row, int column) const {
    const ListRow& cells = rows_.at(row);
    return std::cmp_less(column, cells.size()) ? QString::fromStdString(cells[column]) : QString();
}

void ListRows::SetText(int row, int column, const QString& text) {
    ListRow& cells = rows_.at(row);
    cells.resize(std::max(cells.size(), static_cast<std::size_t>(column) + 1));
    cells[column] = text.toStdString();
    const QModelIndex cell = index(row, column);
    emit dataChanged(cell, cell);
}

int ListRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Count();
}

int ListRows::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant ListRows::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole) return Text(index.row(), index.column());
    if (role != Qt::TextAlignmentRole) return {};
    return static_cast<int>(columns_.at(index.column()).alignment | Qt::AlignVCenter);
}

QVariant ListRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return columns_.at(section).title;
    if (role != Qt::TextAlignmentRole) return {};
    return static_cast<int>(columns_.at(section).alignment | Qt::AlignVCenter);
}

ListView::ListView(const std::vector<ListColumn>& columns, QWidget* parent)
    : QTreeView(parent), rows_(new ListRows(columns, this)) {
    setModel(rows_);
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setItemDelegate(new RowDelegate(this));
    SetUpColumns();
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListView::SelectionMoved);
    connect(rows_, &QAbstractItemModel::modelReset, this, &ListView::SelectionMoved);
}

void ListView::SetUpColumns() {
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    const std::vector<ListColumn>& columns = rows_->Columns();
    for (int column = 0; std::cmp_less(column, columns.size()); ++column) {
        setColumnWidth(column, WidthOf(columns[column]));
    }
}

int ListView::WidthOf(const ListColumn& column) const {
    return column.twips * fontMetrics().horizontalAdvance('0') / kTwipsPerDigit;
}

int ListView::SelectedRow() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

/// As wide as all columns, with a scroll bar beside them.
QSize ListView::sizeHint() const {
    int width = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this) + kGrid;
    for (const ListColumn& column : rows_->Columns()) width += WidthOf(column);
    const int rowHeight = fontMetrics().height() + kGrid;
    return {width + 2 * frameWidth(),
            header()->sizeHint().height() + kRowsInView * rowHeight + 2 * frameWidth()};
}

void ListView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return CopySelectedRow();
    QTreeView::keyPressEvent(event);
}

/// The last column takes what room is left, and never less than its own width.
void ListView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    const int last = rows_->columnCount() - 1;
    if (last < 0) return;
    const int left = viewport()->width() - (header()->length() - columnWidth(last));
    setColumnWidth(last, std::max(left, WidthOf(rows_->Columns()[last])));
}

void ListView::CopySelectedRow() const {
    const int row = SelectedRow();
    if (row < 0) return;
    QStringList cells;
    for (int column = 0; column < rows_->columnCount(); ++column) cells << rows_->Text(row, column);
    QGuiApplication::clipboard()->setText(cells.join('\t'));
}

}  // namespace tallix::toolkit
