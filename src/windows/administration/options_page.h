// The interface of a page of the Options window.
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

    /// Shows and enables what the rights grant on this page.
    virtual void ApplyRights(std::string_view /*access*/) {}

    /// Whether the rights grant the page itself.
    virtual bool IsGranted(std::string_view /*access*/) const { return true; }
};

}  // namespace tallix
