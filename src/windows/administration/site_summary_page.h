// Sites: how many there are, and the way to the window that edits them.
#pragma once

#include <QLabel>

#include "session/application.h"
#include "windows/administration/options_page.h"

namespace tallix {

class SiteSummaryPage : public OptionsPage {
    Q_OBJECT
public:
    SiteSummaryPage(Application& application, QWidget* parent);

    void Load() override;
    bool IsGranted(const AccessRights& access) const override;

signals:
    void WindowWanted(const QString& form);

protected:
    /// Counts again: the window of the sites may have been open.
    void showEvent(QShowEvent* event) override;

private:
    Application& application_;
    QLabel* count_;
};

}  // namespace tallix
