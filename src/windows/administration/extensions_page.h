// The page "Extensions" of the Options window. Its list is edited on the screen and reaches
// the database only when the window is saved.
#pragma once

#include <QLineEdit>
#include <vector>

#include "administration/extensions.h"
#include "session/application.h"
#include "toolkit/entry_panel.h"
#include "toolkit/list_view.h"
#include "windows/administration/list_page.h"
#include "windows/administration/options_page.h"

namespace tallix {

class ExtensionsPage : public OptionsPage {
    Q_OBJECT
public:
    /// `application` must outlive the page.
    ExtensionsPage(Application& application, QWidget* parent);

    void Load() override;
    void ApplyRights(std::string_view access) override;
    bool IsGranted(std::string_view access) const override;

    /// Whether "Get From Data" was run since the list was loaded or saved. Edits of single
    /// lines do not count.
    bool Changed() const { return changed_; }
    void ClearChanged() { changed_ = false; }

    /// What the list shows, to be stored.
    std::vector<Extension> Extensions() const;

private:
    void GetFromData();
    void OpenAdd();
    void OpenEdit();
    void Delete();
    void Save();
    void AddLine();
    bool IsListed(const std::string& number) const;

    Application& application_;
    toolkit::ListView* list_;
    QPushButton* getFromData_;
    QPushButton* add_;
    QPushButton* edit_;
    QPushButton* delete_;
    toolkit::EntryPanel* panel_;
    QLineEdit* number_;
    QLineEdit* name_;
    bool changed_ = false;
};

}  // namespace tallix
