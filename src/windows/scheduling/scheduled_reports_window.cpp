#include "windows/scheduling/scheduled_reports_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "toolkit/dialog_keys.h"
#include "toolkit/form_names.h"
#include "toolkit/forms.h"
#include "toolkit/held_window.h"
#include "toolkit/label.h"
#include "toolkit/style.h"
#include "toolkit/text.h"

namespace tallix {
namespace {

constexpr int kTasksWidth = 34 * toolkit::kGrid;
constexpr int kTasksHeight = 30 * toolkit::kGrid;

}  // namespace

ScheduledReportsWindow::ScheduledReportsWindow(toolkit::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - Scheduled Reports"),
      application_(application),
      definition_(new ScheduleDefinition(application)),
      tasks_(new QListView),
      taskNames_(new QStringListModel(this)),
      create_(new QPushButton("Create New")),
      edit_(new QPushButton("Edit Selected")),
      delete_(new QPushButton("Delete Selected")) {
    auto* columns = new QHBoxLayout;
    columns->setSpacing(toolkit::kMargin);
    columns->addWidget(definition_, 1);
    columns->addLayout(TaskColumn());
    auto* exit = new QPushButton("Exit Schedule Screen");
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    rows->setSpacing(toolkit::kMargin);
    rows->addLayout(columns);
    rows->addLayout(ExitRow(exit));
    ConnectInputs();
    new toolkit::DialogKeys(*this, definition_->SaveButton(), exit);
}

QLayout* ScheduledReportsWindow::TaskColumn() {
    tasks_->setModel(taskNames_);
    tasks_->setUniformItemSizes(true);
    tasks_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tasks_->setFixedWidth(kTasksWidth);
    tasks_->setMinimumHeight(kTasksHeight);
    auto* rows = new QVBoxLayout;
    rows->setSpacing(toolkit::kSpacing);
    rows->addWidget(toolkit::LabelOf("Current Tasks", tasks_));
    rows->addWidget(tasks_, 1);
    for (QPushButton* button : {create_, edit_, delete_}) rows->addWidget(button);
    return rows;
}

QLayout* ScheduledReportsWindow::ExitRow(QPushButton* exit) {
    exit->setToolTip("Close and save changes");
    connect(exit, &QPushButton::clicked, this, &QWidget::close);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(exit);
    return row;
}

void ScheduledReportsWindow::ConnectInputs() {
    connect(definition_->SaveButton(), &QPushButton::clicked, this, &ScheduledReportsWindow::SaveDefined);
    connect(tasks_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ScheduledReportsWindow::EnableTaskButtons);
    connect(create_, &QPushButton::clicked, this, &ScheduledReportsWindow::CreateNew);
    connect(edit_, &QPushButton::clicked, this, &ScheduledReportsWindow::EditSelected);
    connect(delete_, &QPushButton::clicked, this, &ScheduledReportsWindow::DeleteSelected);
}

void ScheduledReportsWindow::OnLoad() {
    definition_->ListReports();
    ListTasks();
    EndDefinition();
}

void ScheduledReportsWindow::OnUnload() {
    OtherForms().Show(kOptionsForm);
}

void ScheduledReportsWindow::ListTasks() {
    taskNames_->setStringList(toolkit::ToQStringList(ListSchedules(application_)));
    EnableTaskButtons();
}

QString ScheduledReportsWindow::SelectedTask() const {
    return tasks_->selectionModel()->selectedIndexes().value(0).data().toString();
}

void ScheduledReportsWindow::EnableTaskButtons() {
    const bool selected = tasks_->selectionModel()->hasSelection();
    edit_->setEnabled(selected);
    delete_->setEnabled(selected);
}

void ScheduledReportsWindow::LeaveTasks() {
    tasks_->clearSelection();
    tasks_->setEnabled(false);
}

void ScheduledReportsWindow::EndDefinition() {
    definition_->End();
    tasks_->setEnabled(true);
    create_->setFocus();
}

void ScheduledReportsWindow::CreateNew() {
    definition_->BeginNew();
    LeaveTasks();
}

void ScheduledReportsWindow::EditSelected() {
    const std::string name = SelectedTask().toStdString();
    definition_->BeginEdit(name, ReadSchedule(application_, name));
    LeaveTasks();
}

void ScheduledReportsWindow::DeleteSelected() {
    const std::string name = SelectedTask().toStdString();
    const Answer answer = application_.prompts.Show(
        {"Delete Report?", "Are you sure you wish to delete the scheduled report " + name + "?",
         MessageIcon::Question, MessageButtons::YesNo});
    if (answer != Answer::Yes) return;
    {
        const toolkit::HeldWindow held(*this);
        DeleteSchedule(application_, name);
    }
    ListTasks();
    create_->setFocus();
}

// Events run while the task is created: the window is held, so that nothing is saved twice
// and the window is not closed. The list shows an edited schedule twice until it is loaded
// again.
void ScheduledReportsWindow::SaveDefined() {
    const Schedule schedule = definition_->Defined();
    if (const auto refusal = RefusalOf(schedule)) {
        application_.prompts.Show(*refusal);
        return;
    }
    {
        const toolkit::HeldWindow held(*this);
        SaveSchedule(application_, schedule, definition_->Mode());
    }
    taskNames_->setStringList(taskNames_->stringList() << toolkit::ToQString(schedule.name));
    EndDefinition();
}

}  // namespace tallix
