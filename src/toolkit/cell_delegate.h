// Draws the cells of a ListView, and edits them in place where the list allows it.
#pragma once

#include <QStyledItemDelegate>

namespace tallix::toolkit {

class CellDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// A little higher than the text.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    /// A box without a border, named "txtLabelEdit_" and the name of the list.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    /// Escape does not cancel.
    bool eventFilter(QObject* editor, QEvent* event) override;
};

}  // namespace tallix::toolkit
