// The page "Address Book" of the Options window.
#pragma once

#include <QLineEdit>

#include "administration/address_book.h"
#include "session/application.h"
#include "toolkit/entry_panel.h"
#include "toolkit/list_view.h"
#include "windows/administration/list_page.h"
#include "windows/administration/options_page.h"

namespace tallix {

class AddressBookPage : public OptionsPage {
    Q_OBJECT
public:
    /// `application` must outlive the page.
    AddressBookPage(Application& application, QWidget* parent);

    void Load() override;
    bool IsGranted(std::string_view access) const override;

private:
    void OpenAdd();
    void OpenEdit();
    void Delete();
    void Import();
    void Save();
    void Add(const KnownNumber& entry);
    void Rename(const KnownNumber& entry);
    int RowOf(const std::string& number) const;

    Application& application_;
    toolkit::ListView* list_;
    toolkit::EntryPanel* panel_;
    QLineEdit* name_;
    QLineEdit* number_;
    bool edits_ = false;  ///< whether the panel is for an entry that is there
};

}  // namespace tallix
