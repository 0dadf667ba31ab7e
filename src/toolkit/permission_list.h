// The 42 rights as a list of boxes to tick.
#pragma once

#include <QListWidget>

#include "session/access_rights.h"

namespace tallix::toolkit {

class PermissionList : public QListWidget {
    Q_OBJECT
public:
    explicit PermissionList(QWidget* parent = nullptr);

    /// Ticks the rights that are granted, and no others.
    void ShowAccess(const AccessRights& access);

    /// The rights that are ticked.
    AccessRights Access() const;

    /// Ticks all rights or none.
    void TickAll(bool ticked);
};

}  // namespace tallix::toolkit
