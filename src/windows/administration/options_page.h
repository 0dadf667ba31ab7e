// What every page of the Options window offers to it.
#pragma once

#include <QWidget>
#include <string_view>

namespace tallix {

class OptionsPage : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// Fills the lists and fields from the database and the settings. Throws DatabaseError.
    virtual void Load() {}

    /// Shows, hides, enables what an access string grants on this page.
    virtual void ApplyRights(std::string_view /*access*/) {}

    /// Whether the page is there at all for someone with that access string.
    virtual bool IsGranted(std::string_view /*access*/) const { return true; }
};

}  // namespace tallix
