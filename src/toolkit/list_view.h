// The list of all windows: rows of text in columns of a fixed width, one row selected at a
// time, copied with the clipboard's own keys. It never sorts. 100,000 rows show at once.
#pragma once

#include <QTreeView>
#include <string>
#include <vector>

#include "toolkit/list_model.h"

namespace tallix::toolkit {

/// The cells of a row in UTF-8. A row may have fewer cells than the list has columns,
/// and more, which are then not seen.
using ListRow = std::vector<std::string>;
using ListColumn = ColumnHead;

/// Rows of plain cells. RecordModel takes their place.
class ListRows : public ListModel {
    Q_OBJECT
public:
    using ListModel::ListModel;

    const std::vector<ColumnHead>& Columns() const { return Heads(); }
    const std::vector<ListRow>& All() const { return rows_; }
    int Count() const override { return static_cast<int>(rows_.size()); }

    /// Replaces all rows. What was selected is selected no more.
    void Set(std::vector<ListRow> rows);
    void Append(ListRow row);
    void Remove(int row);

    /// A cell's text; empty where the row has no such cell. Setting makes what lacks.
    QString Text(int row, int column) const override;
    void SetText(int row, int column, const QString& text);

protected:
    bool IsWritable(int) const override { return true; }
    void WriteText(int row, int column, const QString& text) override;

private:
    std::vector<ListRow> rows_;
};

class ListView : public QTreeView {
    Q_OBJECT
public:
    /// `model` must outlive the list.
    explicit ListView(ListModel& model, QWidget* parent = nullptr);

    /// With a model of plain rows, Rows().
    explicit ListView(const std::vector<ListColumn>& columns, QWidget* parent = nullptr);

    ListModel& Model() const { return model_; }
    ListRows& Rows() const { return dynamic_cast<ListRows&>(model_); }

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
