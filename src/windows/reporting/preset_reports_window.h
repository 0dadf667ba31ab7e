// The Preset Reports window ("Form7"): a person picks a report, fills in what it asks for
// and runs it.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QStringListModel>
#include <array>
#include <vector>

#include "reporting/catalogue.h"
#include "reporting/preset_request.h"
#include "toolkit/date_input.h"
#include "windows/reporting/report_run_form.h"

namespace tallix {

class PresetReportsWindow : public ReportRunForm {
    Q_OBJECT
public:
    /// `application`, `printers` and `flags`, the process's report switches, must outlive
    /// the window.
    PresetReportsWindow(toolkit::Forms& forms, Application& application, ReportFlags& flags,
                        toolkit::Printers& printers);

protected:
    void OnLoad() override;
    Message NoDataMessage() const override { return tallix::NoDataMessage(); }

private:
    QWidget* ReportsColumn();
    QLayout* FilterColumn();
    QGridLayout* FilterGrid();
    void AddRow(QGridLayout& grid, Input input, const QString& caption, const std::vector<QWidget*>& inputs);
    void AddDateRows(QGridLayout& grid);
    void NameInputs();
    QLayout* ButtonRow();
    void ConnectInputs();
    void FillLists();

    void SelectReport();
    void EnableInputs(const EnabledInputs& enabled);

    void RunReport();
    std::string SelectedReport() const;
    PresetRun Describe() const;

    ReportFlags& flags_;
    QListView* reports_;
    QStringListModel* reportNames_;
    std::array<std::vector<QWidget*>, kInputs> inputs_;  ///< labels included
    EnabledInputs enabled_;
    toolkit::DateInput* start_;
    toolkit::DateInput* end_;
    QComboBox* timeFrom_;
    QComboBox* timeTo_;
    QLineEdit* extension_;
    QLineEdit* account_;
    QComboBox* site_;
    QComboBox* group_;
    QLineEdit* duration_;
    QRadioButton* greaterThan_;
    QRadioButton* lessThan_;
    QCheckBox* graph_;

    QPushButton* run_;
    QPushButton* cancel_;
};

}  // namespace tallix
