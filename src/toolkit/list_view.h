// The list of all windows: rows of plain text in columns of a fixed width, one row
// selected at a time, copied with the clipboard's own keys. It never sorts: rows stand
// in the order in which they were added. 100,000 rows show at once.
//
//     auto* list = new toolkit::ListView({{"Date", 1000}, {"Time", 900, Qt::AlignHCenter}}, this);
//     list->Rows().Set(std::move(rows));
#pragma once

#include <QAbstractTableModel>
#include <QTreeView>
#include <string>
#include <vector>

namespace tallix::toolkit {

/// The width of a column for which none is told. Widths are in twips of a font whose
/// digits are 90 wide, and grow with the font of the list.
inline constexpr int kPlainColumnWidth = 1440;

struct ListColumn {
    QString title;
    int twips = kPlainColumnWidth;
    Qt::Alignment alignment = Qt::AlignLeft;
};

/// The cells of a row in UTF-8. A row may have fewer cells than the list has columns,
/// and more, which are then not seen.
using ListRow = std::vector<std::string>;

class ListRows : public QAbstractTableModel {
    Q_OBJECT
public:
    ListRows(std::vector<ListColumn> columns, QObject* parent);

    const std::vector<ListColumn>& Columns() const { return columns_; }
    const std::vector<ListRow>& All() const { return rows_; }
    int Count() const { return static_cast<int>(rows_.size()); }

    /// Replaces all rows. What was selected is selected no more.
    void Set(std::vector<ListRow> rows);
    void Append(ListRow row);
    void Remove(int row);

    /// A cell's text; empty where the row has no such cell. Setting makes what lacks.
    QString Text(int row, int column) const;
    void SetText(int row, int column, const QString& text);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<ListColumn> columns_;
    std::vector<ListRow> rows_;
};

class ListView : public QTreeView {
    Q_OBJECT
public:
    explicit ListView(const std::vector<ListColumn>& columns, QWidget* parent = nullptr);

    ListRows& Rows() const { return *rows_; }

    /// The selected row; -1 where there is none.
    int SelectedRow() const;

    QSize sizeHint() const override;

signals:
    /// Another row was selected, or none any more.
    void SelectionMoved();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int WidthOf(const ListColumn& column) const;
    void SetUpColumns();
    void CopySelectedRow() const;

    ListRows* rows_;
};

}  // namespace tallix::toolkit
