// Report Design: the colours and the alignment of the coloured reports, with a preview.
#pragma once

#include "toolkit/report_preview.h"
#include "windows/administration/settings_page.h"

namespace tallix {

class ReportDesignPage : public SettingsPage {
    Q_OBJECT
public:
    ReportDesignPage(Application& application, QWidget* parent);

    void ApplyRights(const AccessRights& access) override;
    bool IsGranted(const AccessRights& access) const override;

private:
    QLayout* Buttons();
    QPushButton* Button(const QString& caption);
    void BindColour(std::size_t index);
    void AddAlignment();
    void Choose(std::size_t index);
    void RestoreDefaults();

    toolkit::ReportPreview* preview_;
    QList<QPushButton*> buttons_;
};

}  // namespace tallix
