#include "toolkit/list_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "toolkit/cell_delegate.h"
#include "toolkit/style.h"

namespace tallix::toolkit {
namespace {

constexpr int kTwipsPerDigit = 90;
constexpr int kRowsInView = 12;

}  // namespace

ListView::ListView(ListModel& model, QWidget* parent) : QTreeView(parent), model_(model) {
    setModel(&model_);
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setItemDelegate(new CellDelegate(this));
    SetUpColumns();
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListView::SelectionMoved);
    connect(&model_, &QAbstractItemModel::modelReset, this, &ListView::SelectionMoved);
}

void ListView::SetUpColumns() {
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    const std::vector<ColumnHead>& columns = model_.Heads();
    for (int column = 0; std::cmp_less(column, columns.size()); ++column) {
        setColumnWidth(column, WidthOf(columns[column]));
    }
}

int ListView::WidthOf(const ColumnHead& column) const {
    return column.twips * fontMetrics().horizontalAdvance('0') / kTwipsPerDigit;
}

int ListView::SelectedRow() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

void ListView::EnableEditing() {
    setEditTriggers(DoubleClicked);
    auto* key = new QShortcut(Qt::Key_F2, this, nullptr, nullptr, Qt::WidgetShortcut);
    connect(key, &QShortcut::activated, this, &ListView::EditNextCell);
}

void ListView::EditNextCell() {
    const int row = SelectedRow();
    if (row < 0) return;
    const bool isSameRow = edited_.isValid() && edited_.row() == row;
    const int column = isSameRow ? (edited_.column() + 1) % model_.columnCount() : 0;
    setCurrentIndex(model_.index(row, column));
    edit(currentIndex());
}

bool ListView::edit(const QModelIndex& cell, EditTrigger trigger, QEvent* event) {
    const bool isOpen = QTreeView::edit(cell, trigger, event);
    if (isOpen) edited_ = cell;
    return isOpen;
}

/// As wide as all columns, with a scroll bar beside them.
QSize ListView::sizeHint() const {
    int width = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this) + kGrid;
    for (const ColumnHead& column : model_.Heads()) width += WidthOf(column);
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
    const int last = model_.columnCount() - 1;
    if (last < 0) return;
    const int left = viewport()->width() - (header()->length() - columnWidth(last));
    setColumnWidth(last, std::max(left, WidthOf(model_.Heads()[last])));
}

void ListView::CopySelectedRow() const {
    const int row = SelectedRow();
    if (row < 0) return;
    QStringList cells;
    for (int column = 0; column < model_.columnCount(); ++column) cells << model_.Text(row, column);
    QGuiApplication::clipboard()->setText(cells.join('\t'));
}

}  // namespace tallix::toolkit
