// Site Configuration ("Form14"): lists the sites, adds, edits and deletes them, and restarts
// the services that use them. Closing it shows the Options window again.
#pragma once

#include <QPushButton>
#include <vector>

#include "administration/sites.h"
#include "session/application.h"
#include "toolkit/form.h"
#include "toolkit/list_view.h"
#include "toolkit/progress_panel.h"
#include "windows/administration/site_entry_panel.h"

namespace tallix {

class SitesWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    SitesWindow(toolkit::Forms& forms, Application& application);

protected:
    void OnLoad() override;
    void OnUnload() override;

    /// Ignored while the services restart, which serves events.
    void closeEvent(QCloseEvent* event) override;

private:
    QLayout* ButtonRow();
    void ConnectButtons();
    void ShowSites(int selectedRow = -1);
    const SiteRecord* Selected() const;
    void EnableButtons();
    void OpenEntry(SiteEntry entry, const SiteRecord& site);
    void CloseEntry();
    void SaveSite();
    void EditSelected();
    void DeleteSelected();
    void SaveAndExit();
    void ExitWithoutSaving();

    Application& application_;
    toolkit::RecordModel<SiteRecord>* sites_;
    toolkit::ListView* list_;
    QPushButton* add_;
    QPushButton* edit_;
    QPushButton* delete_;
    QPushButton* save_;
    QPushButton* exit_;
    SiteEntryPanel* entry_;
    toolkit::ProgressPanel* restart_;
    SiteEntry entryKind_ = SiteEntry::Added;
    bool restarting_ = false;
};

}  // namespace tallix
