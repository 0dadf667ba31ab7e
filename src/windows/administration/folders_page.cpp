#include "windows/administration/folders_page.h"

#include <QLineEdit>

namespace tallix {

FoldersPage::FoldersPage(Application& application, QWidget* parent) : SettingsPage(application, parent) {
    QLineEdit& reports = AddFolder("Custom Reports", "ReportsLocation", "Select Reports Folder");
    reports.setToolTip("Enter location of custom reports");
    AddFolder("Company Docs", "DocsLocation", "Select Company Docs Folder");
    Rows().addStretch();
}

QLineEdit& FoldersPage::AddFolder(const QString& title, std::string_view key, const char* question) {
    auto* browse = new QPushButton("Browse");
    QFormLayout& panel = AddPanel(title);
    panel.setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    auto& field = dynamic_cast<QLineEdit&>(AddSetting(panel, key, browse));
    connect(browse, &QPushButton::clicked, this, [this, &field, question] {
        const auto folder = Program().prompts.AskFolder(question);
        if (folder) field.setText(QString::fromStdString(folder->string()));
    });
    return field;
}

bool FoldersPage::IsGranted(std::string_view access) const {
    return Allows(access, AccessRight::Folders);
}

}  // namespace tallix
