// The pages of the Options window with lists. A page puts its lists together from RecordLists
// and gives each its buttons:
//
//     list_(*AddList<KnownNumber>("Current Numbers", {{"Name", &KnownNumber::name}, ...}))
//     ...
//     list_.AddButton({"Add Number", "Click to add a number"}, [this] { OpenAdd(); });
//     Arrange(list_.Layout(Heading::Shown));
#pragma once

#include "session/application.h"
#include "windows/administration/options_page.h"
#include "windows/administration/record_list.h"

namespace tallix {

/// What an entry panel was opened for.
enum class Entry { New, Existing };

class ListPage : public OptionsPage {
    Q_OBJECT
public:
    /// Shows the buttons whose right is granted. Those without a right always show.
    void ApplyRights(const AccessRights& access) override;

    bool IsGranted(const AccessRights& access) const override { return Allows(access, right_); }

protected:
    /// `right` grants the page. `application` must outlive it.
    ListPage(Application& application, AccessRight right, QWidget* parent);

    Application& Program() const { return application_; }

    template <typename Record>
    RecordList<Record>* AddList(const QString& name, std::vector<toolkit::Column<Record>> columns) {
        auto* list = new RecordList<Record>(name, std::move(columns), *this);
        lists_.append(list);
        return list;
    }

    /// Fills the page with the columns, side by side.
    void Arrange(const QList<QLayout*>& columns);

    /// Asks a question with Yes and No.
    bool Confirms(const Message& question) const;

private:
    Application& application_;
    AccessRight right_;
    QList<ButtonedList*> lists_;
};

}  // namespace tallix
