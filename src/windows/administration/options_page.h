// The interface of a page of the Options window.
#pragma once

#include <QWidget>

#include "session/access_rights.h"

namespace tallix {

class OptionsPage : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// Fills the lists and fields from the database and the settings. Throws DatabaseError.
    virtual void Load() {}

    /// Shows and enables what the rights grant on this page.
    virtual void ApplyRights(const AccessRights& /*access*/) {}

    /// Whether the rights grant the page itself.
    virtual bool IsGranted(const AccessRights& /*access*/) const { return true; }
};

}  // namespace tallix
