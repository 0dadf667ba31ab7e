// The Custom Reports window ("Form10"): a person picks fields and filters, saves them under
// a name, and runs them. Filters are filled in for a new report; a saved one runs with the
// filters that were saved.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "reporting/custom_reports.h"
#include "toolkit/date_input.h"
#include "windows/reporting/report_run_form.h"

namespace tallix {

class CustomReportsWindow : public ReportRunForm {
    Q_OBJECT
public:
    /// `application` and `printers` must outlive the window.
    CustomReportsWindow(toolkit::Forms& forms, Application& application, toolkit::Printers& printers);

protected:
    void OnLoad() override;
    Message NoDataMessage() const override;

private:
    QLayout* ReportsColumn();
    QLayout* FieldColumn();
    QLayout* FilterColumn();
    QLayout* ButtonRow();
    QWidget* DataFrame();
    void ConnectInputs();
    void FillFields();
    void ApplyRights();

    void SelectReport();
    void BeginNewReport();
    void OpenReport(const QString& name);
    void Show(const CustomReport& report);
    CustomReport Described() const;
    QRadioButton* ButtonOf(DurationTest test) const;
    DurationTest ChosenTest() const;
    void Save();
    void RunReport();

    QListWidget* reports_;
    QLineEdit* name_;
    QLabel* nameLabel_;
    QListWidget* fields_;
    QGroupBox* data_;
    QLineEdit* account_;
    QLineEdit* duration_;
    QRadioButton* greater_;
    QRadioButton* less_;
    QRadioButton* neither_;  ///< hidden; chosen while neither of the two is
    toolkit::DateInput* start_;
    toolkit::DateInput* end_;
    QLineEdit* extension_;
    QPushButton* delete_;
    QPushButton* save_;
    QPushButton* run_;
    QPushButton* cancel_;
};

}  // namespace tallix
