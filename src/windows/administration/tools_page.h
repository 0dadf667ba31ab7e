// Tools: the windows and jobs that the Options window leads to, and the automatic backup.
#pragma once

#include <QCheckBox>
#include <QGridLayout>
#include <QPushButton>
#include <vector>

#include "administration/options_save.h"
#include "session/application.h"
#include "windows/administration/options_page.h"

namespace tallix {

class ToolsPage : public OptionsPage {
    Q_OBJECT
public:
    ToolsPage(Application& application, QWidget* parent);

    void ApplyRights(const AccessRights& access) override;

    /// What the box of the automatic backup says. It does not show a state of the system: it
    /// is ticked whenever the window opens.
    AutomaticBackup BackupChoice() const {
        return backup_->isChecked() ? AutomaticBackup::On : AutomaticBackup::Off;
    }

signals:
    void WindowWanted(const QString& form);

private:
    QWidget* ToolPanel();
    QWidget* BackupPanel();
    void Start(const char* form);
    void ComputeCosts();

    Application& application_;
    std::vector<QPushButton*> buttons_;  ///< in the order of their table
    QCheckBox* backup_;
};

}  // namespace tallix
