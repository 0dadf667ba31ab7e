// The Scheduled Reports window ("Form16"): defines the reports that run with nobody at
// the screen. One schedule at a time is defined on its left side; the list of all is on
// the right. Closing it shows the Options window again.
#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QStringListModel>
#include <array>
#include <vector>

#include "scheduling/schedules.h"
#include "session/application.h"
#include "toolkit/form.h"

namespace tallix {

class ScheduledReportsWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    ScheduledReportsWindow(toolkit::Forms& forms, Application& application);

protected:
    void OnLoad() override;
    void OnUnload() override;

private:
    /// An input of a parameter with its label.
    struct ParameterInput {
        QWidget* label;
        QLineEdit* field;  ///< of a time list: its own
        QWidget* input;
    };

    QLayout* NameRows();
    QLayout* FrequencyRows();
    QWidget* OutputFrame();
    QLayout* ParameterRows();
    void AddParameter(QGridLayout& grid, int row, int column, Parameter parameter, const QString& caption);
    void AddTimes(QGridLayout& grid, int row, int column);
    QLayout* TaskColumn();
    QLayout* ExitRow(QPushButton* exit);
    void ConnectInputs();

    void ListTasks();
    QString SelectedTask() const;
    void EnableTaskButtons();
    void EnableParameters();
    void ChooseFolder();
    void BeginDefinition(bool editing);
    void EndDefinition();
    void CreateNew();
    void EditSelected();
    void DeleteSelected();
    void SaveSchedule();
    Schedule Defined() const;

    Application& application_;
    bool editing_ = false;

    QWidget* definition_;
    QLineEdit* name_;
    QComboBox* report_;
    QButtonGroup* frequencies_;  ///< ids are places in kFrequencies
    QRadioButton* toFile_;
    QRadioButton* byMail_;
    QLineEdit* location_;
    std::array<ParameterInput, kParameters> parameters_{};
    QPushButton* save_;

    QListView* tasks_;
    QStringListModel* taskNames_;
    QPushButton* create_;
    QPushButton* edit_;
    QPushButton* delete_;
};

}  // namespace tallix
