// Editing a cell of a list in place: a double click lays a borderless box over the cell
// with all of its text selected; F2 does it to the cells of the selected row in turn.
// Enter, or going elsewhere, writes the text back; there is no other way out, and Escape
// does not cancel. Scrolling and resizing count as going elsewhere, since the box would
// lie over another cell then.
#pragma once

#include <QLineEdit>
#include <QPersistentModelIndex>

#include "toolkit/list_view.h"

namespace tallix::toolkit {

class LabelEdit : public QLineEdit {
    Q_OBJECT
public:
    /// Serves `list`, which lies in `owner`, for as long as `owner` lives. The box is
    /// named "txtLabelEdit_" with the list's own name behind it.
    LabelEdit(ListView& list, QWidget& owner);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Edit(const QModelIndex& cell);
    void EditNextCell();
    void WriteBack();

    ListView& list_;
    QPersistentModelIndex cell_;    ///< invalid while nothing is edited, or once its row has gone
    QPersistentModelIndex latest_;  ///< the cell that was edited last
};

}  // namespace tallix::toolkit
