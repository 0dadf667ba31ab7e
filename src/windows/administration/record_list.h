// A list of records with its buttons. One rule holds for all of them: a button that acts on a
// record is off while none is selected, and none is selected after a removal.
#pragma once

#include <QBoxLayout>
#include <QList>
#include <QObject>
#include <QPushButton>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "session/access_rights.h"
#include "toolkit/list_view.h"

namespace tallix {

/// What a button acts on, and so when it is on.
enum class ActsOn { List, Record };

/// Where a button is in the row of buttons.
enum class Side { Left, Right };

struct ListButton {
    QString caption;
    QString tip{};
    ActsOn actsOn = ActsOn::List;
    Side side = Side::Right;
    std::optional<AccessRight> right{};  ///< needed to see the button
};

/// Whether the name of a list is shown above it.
enum class Heading { Hidden, Shown };

class ButtonedList : public QObject {
    Q_OBJECT
public:
    toolkit::ListView& View() const { return *view_; }
    bool HasSelection() const { return view_->SelectedRow() >= 0; }

    QPushButton& AddButton(const ListButton& button, std::function<void()> action);

    /// Enter and a double click on a record press the button, when it is visible.
    void PressOnActivation(QPushButton& button) const;

    void ApplyRights(const AccessRights& access);

    /// The list and, below it, its buttons. To be called once, when all have been added.
    QBoxLayout* Layout(Heading heading);

signals:
    /// Another record was selected, or none.
    void SelectionMoved();

protected:
    /// Belongs to `owner`.
    ButtonedList(const QString& name, toolkit::ListModel& model, QWidget& owner);

private:
    struct PlacedButton {
        QPushButton* widget;
        ListButton button;
    };

    QList<QPushButton*> ButtonsAt(Side side) const;
    void EnableButtons();

    toolkit::ListView* view_;
    std::vector<PlacedButton> buttons_;
};

template <typename Record>
class RecordList : public ButtonedList {
public:
    RecordList(const QString& name, std::vector<toolkit::Column<Record>> columns, QWidget& owner)
        : RecordList(name, *new toolkit::RecordModel<Record>(std::move(columns), &owner), owner) {}

    const std::vector<Record>& All() const { return records_.All(); }
    void Set(std::vector<Record> records) { records_.Set(std::move(records)); }
    void Append(Record record) { records_.Append(std::move(record)); }
    void Replace(int row, Record record) { records_.Replace(row, std::move(record)); }

    /// The selected record; null when none is. Valid until the list changes.
    const Record* Selected() const { return HasSelection() ? &records_.At(View().SelectedRow()) : nullptr; }

    /// Replaces the selected record, which stays selected.
    void ReplaceSelected(Record record) { Replace(View().SelectedRow(), std::move(record)); }

    /// Removes the selected record. The view would then select a neighbour.
    void RemoveSelected() {
        const int row = View().SelectedRow();
        View().setCurrentIndex({});
        records_.Remove(row);
    }

private:
    RecordList(const QString& name, toolkit::RecordModel<Record>& records, QWidget& owner)
        : ButtonedList(name, records, owner), records_(records) {}

    toolkit::RecordModel<Record>& records_;
};

}  // namespace tallix
