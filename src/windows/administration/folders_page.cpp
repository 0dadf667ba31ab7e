#include "windows/administration/folders_page.h"

namespace tallix {

FoldersPage::FoldersPage(Application& application, QWidget* parent) : SettingsPage(application, parent) {
    AddPanel("Custom Reports", OptionPanel::CustomReports)
        .setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    AddPanel("Company Docs", OptionPanel::CompanyDocs).setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    Rows().addStretch();
}

bool FoldersPage::IsGranted(const AccessRights& access) const {
    return Allows(access, AccessRight::Folders);
}

}  // namespace tallix
