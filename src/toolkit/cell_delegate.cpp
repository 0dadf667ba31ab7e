#include "toolkit/cell_delegate.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "toolkit/style.h"

namespace tallix::toolkit {
namespace {

constexpr char kNamePrefix[] = "txtLabelEdit_";

}  // namespace

QSize CellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kGrid);
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    auto* box = new QLineEdit(parent);
    box->setObjectName(kNamePrefix + option.widget->objectName());
    box->setFrame(false);
    box->setStyleSheet("min-height: 0");  // as low as its cell
    box->setAlignment(static_cast<Qt::Alignment>(index.data(Qt::TextAlignmentRole).toInt()));
    box->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    return box;
}

void CellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex&) const {
    editor->setGeometry(option.rect);
}

bool CellDelegate::eventFilter(QObject* editor, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress;
    if (isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) return true;
    return QStyledItemDelegate::eventFilter(editor, event);
}

}  // namespace tallix::toolkit
