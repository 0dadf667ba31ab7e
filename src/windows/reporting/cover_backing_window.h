// The Report Cover/Backing window ("Form3"): edits the settings of the pages before and
// after a report. Closing it shows the window that opened it.
#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <map>

#include "reporting/cover_settings.h"
#include "session/application.h"
#include "toolkit/form.h"

class QVBoxLayout;

namespace tallix {

class CoverBackingWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    CoverBackingWindow(toolkit::Forms& forms, Application& application);

protected:
    void OnLoad() override;
    void OnUnload() override;

private:
    QFrame* CoverFrame();
    QFrame* BackingFrame();
    QLayout* TitleRow();
    QCheckBox* AddBox(QVBoxLayout& rows, const QString& caption, bool CoverSettings::*value);
    void SaveAndExit();

    Application& application_;
    std::map<QCheckBox*, bool CoverSettings::*> boxes_;
    QRadioButton* defaultTitle_;
    QRadioButton* customTitle_;
    QLineEdit* titleText_;
};

}  // namespace tallix
