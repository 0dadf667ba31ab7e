// The Backup/Restore window ("Form4"): chosen tables go into a file, and come back out of
// one. It cannot be closed while that is done and closes by itself at the end; the main
// menu then shows again.
#pragma once

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <span>
#include <vector>

#include "backup/backup.h"
#include "session/access_rights.h"
#include "toolkit/form.h"

namespace tallix {

/// A group of tables that a person may tick.
struct BackupChoice {
    BackupGroup group;
    const char* caption;
    const char* tip;
    AccessRight right;
};

/// A frame with a location, the groups to tick and the button that begins.
class BackupFrame : public QGroupBox {
    Q_OBJECT
public:
    explicit BackupFrame(const QString& title);

    /// Adds a field below the others, with a button behind it where there is one.
    QLineEdit* AddField(const QString& label, const QString& tip, QPushButton* button = nullptr);

    /// Adds what stands below the fields, once these are there: the keyboard goes from input
    /// to input in the order of their coming.
    void AddChoices(std::span<const BackupChoice> choices, QPushButton& begin);

    /// Shows the choices that an access string grants.
    void ApplyRights(std::string_view access);

    std::set<BackupGroup> Chosen() const;

private:
    struct Box {
        const BackupChoice& choice;
        QCheckBox* box;
    };

    QVBoxLayout* rows_;
    QGridLayout* fields_;
    std::vector<Box> boxes_;
};

class BackupWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` and `channel`, the one file of the program's run, must outlive the
    /// window.
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
