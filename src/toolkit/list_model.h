// The records that a ListView shows, in columns that are described as data:
//
//     sites_(new toolkit::RecordModel<SiteRecord>(
//         {{"Site", &SiteRecord::id, 700}, {"Name", &SiteRecord::name, 3000}, {"Kind", KindOf}}, this)),
//     list_(new toolkit::ListView(*sites_)),
//     ...
//     sites_->Set(ReadSites(session));
//     const SiteRecord& selected = sites_->At(list_->SelectedRow());
//
// The order of the records is that in which they were added.
#pragma once

#include <QAbstractTableModel>
#include <concepts>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/text.h"

namespace tallix::toolkit {

/// The width of a column that names none. Widths are in twips of a font whose digits are 90
/// wide, and grow with the font of the list.
inline constexpr int kPlainColumnWidth = 1440;

/// What the heads of a list show.
struct ColumnHead {
    QString title;
    int twips = kPlainColumnWidth;
    Qt::Alignment alignment = Qt::AlignLeft;
};

/// What a ListView needs of its model, whatever the type of its records.
class ListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit ListModel(std::vector<ColumnHead> heads, QObject* parent);

    const std::vector<ColumnHead>& Heads() const { return heads_; }
    virtual int Count() const = 0;
    virtual QString Text(int row, int column) const = 0;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    /// Whether the list may write the cells of a column.
    virtual bool IsWritable(int column) const = 0;
    virtual void WriteText(int row, int column, const QString& text) = 0;

    void EmitRowChanged(int row);

private:
    std::vector<ColumnHead> heads_;
};

/// A column of a list of records: its head, and where its text comes from, which is a
/// member or a function of the record. A list can be edited in place in columns of members.
template <typename Record>
struct Column {
    template <typename Source>
    requires std::invocable<const Source&, const Record&> Column(const QString& title, Source source,
                                                                 int twips = kPlainColumnWidth,
                                                                 Qt::Alignment alignment = Qt::AlignLeft)
        : head{title, twips, alignment},
          read([source](const Record& record) { return ToQString(std::invoke(source, record)); }) {
        if constexpr (std::same_as<Source, std::string Record::*>) {
            write = [source](Record& record, const QString& text) { record.*source = text.toStdString(); };
        }
    }

    ColumnHead head;
    std::function<QString(const Record&)> read;
    std::function<void(Record&, const QString&)> write;  ///< empty for a column that is only read
};

template <typename Record>
class RecordModel : public ListModel {
public:
    RecordModel(std::vector<Column<Record>> columns, QObject* parent)
        : ListModel(HeadsOf(columns), parent), columns_(std::move(columns)) {}

    const std::vector<Record>& All() const { return records_; }
    const Record& At(int row) const { return records_.at(row); }
    int Count() const override { return static_cast<int>(records_.size()); }

    /// Replaces all records. Nothing is selected afterwards.
    void Set(std::vector<Record> records) {
        beginResetModel();
        records_ = std::move(records);
        endResetModel();
    }

    void Append(Record record) {
        beginInsertRows({}, Count(), Count());
        records_.push_back(std::move(record));
        endInsertRows();
    }

    void Replace(int row, Record record) {
        records_.at(row) = std::move(record);
        EmitRowChanged(row);
    }

    void Remove(int row) {
        beginRemoveRows({}, row, row);
        records_.erase(records_.begin() + row);
        endRemoveRows();
    }

    QString Text(int row, int column) const override { return columns_.at(column).read(records_.at(row)); }

protected:
    bool IsWritable(int column) const override { return columns_.at(column).write != nullptr; }

    void WriteText(int row, int column, const QString& text) override {
        columns_.at(column).write(records_.at(row), text);
    }

private:
    static std::vector<ColumnHead> HeadsOf(const std::vector<Column<Record>>& columns) {
        std::vector<ColumnHead> heads;
        heads.reserve(columns.size());
        for (const Column<Record>& column : columns) heads.push_back(column.head);
        return heads;
    }

    std::vector<Column<Record>> columns_;
    std::vector<Record> records_;
};

}  // namespace tallix::toolkit
