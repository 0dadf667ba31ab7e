// Folders: where custom reports and the company's documents are stored.
#pragma once

#include "windows/administration/settings_page.h"

namespace tallix {

class FoldersPage : public SettingsPage {
    Q_OBJECT
public:
    FoldersPage(Application& application, QWidget* parent);

    bool IsGranted(const AccessRights& access) const override;
};

}  // namespace tallix
