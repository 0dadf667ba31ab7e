#include "toolkit/label_edit.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QShortcut>
#include <utility>

namespace tallix::toolkit {
namespace {

constexpr char kNamePrefix[] = "txtLabelEdit_";

bool IsEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

LabelEdit::LabelEdit(ListView& list, QWidget& owner) : QLineEdit(&owner), list_(list) {
    setObjectName(kNamePrefix + list.objectName());
    setFrame(false);
    setStyleSheet("min-height: 0");  // as low as its cell
    hide();
    connect(&list, &ListView::doubleClicked, this, &LabelEdit::Edit);
    auto* key = new QShortcut(Qt::Key_F2, &list, nullptr, nullptr, Qt::WidgetShortcut);
    connect(key, &QShortcut::activated, this, &LabelEdit::EditNextCell);
    for (const QScrollBar* bar : {list.verticalScrollBar(), list.horizontalScrollBar()}) {
        connect(bar, &QScrollBar::valueChanged, this, &LabelEdit::WriteBack);
    }
    connect(list.header(), &QHeaderView::sectionResized, this, &LabelEdit::WriteBack);
}

void LabelEdit::Edit(const QModelIndex& cell) {
    WriteBack();
    list_.scrollTo(cell);
    cell_ = cell;
    latest_ = cell;
    const QRect place = list_.visualRect(cell);
    setGeometry(QRect(list_.viewport()->mapTo(parentWidget(), place.topLeft()), place.size()));
    setAlignment(list_.Rows().Columns().at(cell.column()).alignment);
    setAccessibleName(list_.Rows().Columns().at(cell.column()).title);
    setText(list_.Rows().Text(cell.row(), cell.column()));
    selectAll();
    show();
    raise();
    setFocus();
}

void LabelEdit::EditNextCell() {
    const int row = list_.SelectedRow();
    if (row < 0) return;
    const bool sameRow = latest_.isValid() && latest_.row() == row;
    const int column = sameRow ? (latest_.column() + 1) % list_.Rows().columnCount() : 0;
    Edit(list_.Rows().index(row, column));
}

// The place is taken back first: hiding the box takes its focus, which comes here again.
void LabelEdit::WriteBack() {
    const QPersistentModelIndex cell = std::exchange(cell_, {});
    if (cell.isValid()) list_.Rows().SetText(cell.row(), cell.column(), text());
    hide();
}

// What the window does on Enter and Escape is not for the box.
bool LabelEdit::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (IsEnter(key) || key.key() == Qt::Key_Escape) event->accept();
    }
    return QLineEdit::event(event);
}

void LabelEdit::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(*event)) {
        WriteBack();
        return list_.setFocus();
    }
    if (event->key() != Qt::Key_Escape) QLineEdit::keyPressEvent(event);
}

// The focus is not lost to the box's own menu, nor to another program.
void LabelEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    const bool comesBack =
        event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (!comesBack) WriteBack();
}

}  // namespace tallix::toolkit
