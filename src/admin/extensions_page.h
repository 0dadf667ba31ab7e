// The page "Extensions" of the Options window. Its list is edited on the screen and reaches
// the database only when the window is saved.
#pragma once

#include <QLineEdit>
#include <vector>

#include "admin/extensions.h"
#include "admin/list_page.h"
#include "admin/options_page.h"
#include "foundation/application.h"
#include "ui/entry_panel.h"
#include "ui/list_view.h"

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
    ui::ListView* list_;
    QPushButton* getFromData_;
    QPushButton* add_;
    QPushButton* edit_;
    QPushButton* delete_;
    ui::EntryPanel* panel_;
    QLineEdit* number_;
    QLineEdit* name_;
    bool changed_ = false;
};

}  // namespace tallix
