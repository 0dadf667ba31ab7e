// One half of the Backup/Restore window.
#pragma once

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <set>
#include <span>
#include <string_view>
#include <vector>

#include "backup/backup_format.h"
#include "session/access_rights.h"

namespace tallix {

/// A group of tables to choose.
struct BackupChoice {
    BackupGroup group;
    const char* caption;
    const char* tip;
    AccessRight right;
};

/// A frame with a location, the groups to choose and the button that begins.
class BackupFrame : public QGroupBox {
    Q_OBJECT
public:
    explicit BackupFrame(const QString& title);

    /// Adds a field below the others, with a button after it where one is given.
    QLineEdit* AddField(const QString& label, const QString& tip, QPushButton* button = nullptr);

    /// Adds the check boxes and the button below the fields. To be called after the last
    /// AddField: the Tab key follows the order of adding.
    void AddChoices(std::span<const BackupChoice> choices, QPushButton& begin);

    /// Shows the choices that the rights grant.
    void ApplyRights(const AccessRights& access);

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

}  // namespace tallix
