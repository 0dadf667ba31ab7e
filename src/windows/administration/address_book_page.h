// The page "Address Book" of the Options window.
#pragma once

#include <QLineEdit>

#include "administration/address_book.h"
#include "toolkit/entry_panel.h"
#include "windows/administration/list_page.h"

namespace tallix {

class AddressBookPage : public ListPage {
    Q_OBJECT
public:
    /// `application` must outlive the page.
    AddressBookPage(Application& application, QWidget* parent);

    void Load() override;

private:
    void AddButtons();
    void OpenAdd();
    void OpenEdit();
    void Delete();
    void Import();
    void Save();
    void Add(const KnownNumber& entry);
    void Rename(const KnownNumber& entry);

    RecordList<KnownNumber>& list_;
    toolkit::EntryPanel* panel_;
    QLineEdit* name_;
    QLineEdit* number_;
    Entry entry_ = Entry::New;
};

}  // namespace tallix
