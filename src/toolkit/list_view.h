// The list of all windows: rows of text in columns of a fixed width, one row selected at a
// time, copied with the clipboard's own keys. It never sorts. 100,000 rows show at once.
#pragma once

#include <QTreeView>

#include "toolkit/list_model.h"

namespace tallix::toolkit {

class ListView : public QTreeView {
    Q_OBJECT
public:
    /// `model` must outlive the list.
    explicit ListView(ListModel& model, QWidget* parent = nullptr);

    ListModel& Model() const { return model_; }

    /// The selected row; -1 where there is none.
    int SelectedRow() const;

    /// Lets a person edit cells in place: a double click opens a cell, with all of its text
    /// selected, and F2 the cells of the selected row in turn. Enter, or going elsewhere,
    /// writes the text to the model. Escape does not cancel.
    void EnableEditing();

    using QTreeView::edit;
    QSize sizeHint() const override;

signals:
    /// Another row was selected, or none any more.
    void SelectionMoved();

protected:
    bool edit(const QModelIndex& cell, EditTrigger trigger, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int WidthOf(const ColumnHead& column) const;
    void SetUpColumns();
    void CopySelectedRow() const;
    void EditNextCell();

    ListModel& model_;
    QPersistentModelIndex edited_;  ///< the cell that was edited last
};

}  // namespace tallix::toolkit
