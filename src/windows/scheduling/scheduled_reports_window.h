// The Scheduled Reports window ("Form16"): defines the reports that run unattended. One
// schedule at a time is defined on the left, the list of all is on the right. Closing it
// shows the Options window again.
#pragma once

#include <QListView>
#include <QPushButton>
#include <QStringListModel>

#include "session/application.h"
#include "toolkit/form.h"
#include "windows/scheduling/schedule_definition.h"

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
    QLayout* TaskColumn();
    QLayout* ExitRow(QPushButton* exit);
    void ConnectInputs();

    void ListTasks();
    QString SelectedTask() const;
    void EnableTaskButtons();
    void LeaveTasks();
    void EndDefinition();
    void CreateNew();
    void EditSelected();
    void DeleteSelected();
    void SaveDefined();

    Application& application_;
    ScheduleDefinition* definition_;
    QListView* tasks_;
    QStringListModel* taskNames_;
    QPushButton* create_;
    QPushButton* edit_;
    QPushButton* delete_;
};

}  // namespace tallix
