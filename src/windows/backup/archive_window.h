// The Archive Data window ("Form9"): chooses the calls that leave the call data and where they
// go. It cannot be closed while they are archived. Closing it shows the main menu again.
#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

#include "backup/archive.h"
#include "toolkit/form.h"
#include "toolkit/progress_panel.h"

namespace tallix {

class ArchiveWindow : public toolkit::Form, private ArchiveView {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    ArchiveWindow(toolkit::Forms& forms, Application& application);

protected:
    void OnUnload() override;
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* ArchiveFrame();
    void AddPeriodRows(QGridLayout& grid);
    void AddDestinationRows(QGridLayout& grid);
    void SetTips();
    QWidget* Foot();
    QWidget* ProgressFrame();
    QLayout* ButtonRow();
    void ConnectInputs();

    void EnableInputs();
    void EnableLabels();
    void Browse();

    void ShowProgress() override;
    ArchiveRequest Request() const override;
    void LockInputs() override;
    RunProgress& Records() override { return *records_; }
    void ClearInputs() override;
    void HideProgress() override;
    void ResetProgress() override { records_->Reset(); }

    Application& application_;
    QRadioButton* entireYear_;
    QRadioButton* selectedMonths_;
    QButtonGroup* periods_;
    QLineEdit* year_;
    QComboBox* firstMonth_;
    QComboBox* lastMonth_;
    QRadioButton* toFile_;
    QRadioButton* toDatabase_;
    QButtonGroup* destinations_;
    QLineEdit* name_;
    QLineEdit* location_;
    QPushButton* browse_;
    QPushButton* begin_;
    QPushButton* close_;
    toolkit::ProgressLine* records_;
    QWidget* progress_;
    QStackedWidget* foot_;
    bool working_ = false;
};

}  // namespace tallix
