// The Backup/Restore window ("Form4"): saves chosen tables to a file, and restores them from
// one. It cannot be closed meanwhile, and closes at the end. The main menu then shows again.
#pragma once

#include <QLineEdit>
#include <QPushButton>

#include "backup/backup.h"
#include "session/application.h"
#include "toolkit/form.h"
#include "windows/backup/backup_frame.h"

namespace tallix {

class BackupWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` and `channel` must outlive the window.
    BackupWindow(toolkit::Forms& forms, Application& application, BackupChannel& channel);

protected:
    void OnLoad() override;
    void OnUnload() override;

private:
    QWidget* Half(BackupFrame& frame, const QString& refusal, AccessRight right);
    QLayout* Frames();
    void ConnectButtons();

    void BrowseBackup();
    void BrowseRestore();
    void Backup();
    void Restore();
    void Replay();

    Application& application_;
    BackupChannel& channel_;
    QPushButton* beginBackup_;
    QPushButton* browseBackup_;
    BackupFrame* backup_;
    QLineEdit* backupName_;
    QLineEdit* backupLocation_;
    QPushButton* beginRestore_;
    QPushButton* browseRestore_;
    BackupFrame* restore_;
    QLineEdit* restoreLocation_;
    QPushButton* close_;
};

}  // namespace tallix
