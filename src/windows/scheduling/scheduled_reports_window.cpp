#include "windows/scheduling/scheduled_reports_window.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "toolkit/choice_lists.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/form_names.h"
#include "toolkit/forms.h"
#include "toolkit/held_open.h"
#include "toolkit/label.h"
#include "toolkit/style.h"
#include "toolkit/text.h"

namespace tallix {
namespace {

constexpr int kTasksWidth = 34 * toolkit::kGrid;
constexpr int kTasksHeight = 30 * toolkit::kGrid;
constexpr int kFieldWidth = 20 * toolkit::kGrid;
constexpr int kIntervalWidth = 10 * toolkit::kGrid;

/// A frequency and the interval beside it, which is there to be looked at alone.
struct FrequencyRow {
    const char* interval;
    int last;
};

constexpr std::array<FrequencyRow, kFrequencies.size()> kIntervals = {
    {{"Hour Interval:", 23}, {"Day Interval:", 365}, {"Weekly Interval:", 52}, {"Monthly Interval:", 12}}};

QComboBox* IntervalList(int last) {
    auto* list = new QComboBox;
    for (int interval = 1; interval <= last; ++interval) list->addItem(QString::number(interval));
    list->setFixedWidth(kIntervalWidth);
    return list;
}

QGridLayout* Grid() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(toolkit::kSpacing * 2);
    grid->setVerticalSpacing(toolkit::kSpacing);
    return grid;
}

}  // namespace

ScheduledReportsWindow::ScheduledReportsWindow(toolkit::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - Scheduled Reports"),
      application_(application),
      definition_(new QWidget),
      name_(new QLineEdit),
      report_(new QComboBox),
      frequencies_(new QButtonGroup(this)),
      toFile_(new QRadioButton("Exported File")),
      byMail_(new QRadioButton("Email")),
      location_(new QLineEdit),
      save_(new QPushButton("Save Schedule")),
      tasks_(new QListView),
      taskNames_(new QStringListModel(this)),
      create_(new QPushButton("Create New")),
      edit_(new QPushButton("Edit Selected")),
      delete_(new QPushButton("Delete Selected")) {
    auto* left = new QVBoxLayout(definition_);
    left->setContentsMargins(0, 0, 0, 0);
    left->setSpacing(toolkit::kMargin);
    left->addLayout(NameRows());
    left->addLayout(FrequencyRows());
    left->addWidget(OutputFrame());
    left->addLayout(ParameterRows());
    left->addStretch();
    left->addWidget(save_, 0, Qt::AlignRight);
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
    new toolkit::DialogKeys(*this, save_, exit);
}

QLayout* ScheduledReportsWindow::NameRows() {
    auto* grid = Grid();
    grid->addWidget(toolkit::LabelOf("Task Name:", name_), 0, 0);
    grid->addWidget(name_, 0, 1);
    grid->addWidget(toolkit::LabelOf("Select Preset Report:", report_), 1, 0);
    grid->addWidget(report_, 1, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QLayout* ScheduledReportsWindow::FrequencyRows() {
    auto* grid = Grid();
    for (int row = 0; row < static_cast<int>(kIntervals.size()); ++row) {
        auto* option = new QRadioButton(toolkit::ToQString(kFrequencies.at(row)));
        auto* interval = IntervalList(kIntervals.at(row).last);
        frequencies_->addButton(option, row);
        grid->addWidget(option, row, 0);
        grid->addWidget(toolkit::LabelOf(kIntervals.at(row).interval, interval), row, 1);
        grid->addWidget(interval, row, 2);
    }
    grid->setColumnMinimumWidth(0, kFieldWidth);
    grid->setColumnStretch(3, 1);
    return grid;
}

QWidget* ScheduledReportsWindow::OutputFrame() {
    auto* frame = new QGroupBox("Output");
    auto* folder = new QPushButton("...");
    folder->setToolTip("Select Output Folder");
    connect(folder, &QPushButton::clicked, this, &ScheduledReportsWindow::ChooseFolder);
    auto* options = new QHBoxLayout;
    options->setSpacing(toolkit::kMargin);
    options->addWidget(toFile_);
    options->addWidget(byMail_);
    options->addStretch();
    auto* place = new QHBoxLayout;
    place->setSpacing(toolkit::kSpacing * 2);
    place->addWidget(toolkit::LabelOf("Location:", location_));
    place->addWidget(location_, 1);
    place->addWidget(folder);
    auto* rows = new QVBoxLayout(frame);
    rows->setContentsMargins(toolkit::kSpacing * 2, toolkit::kSpacing * 2, toolkit::kSpacing * 2,
                             toolkit::kSpacing * 2);
    rows->setSpacing(toolkit::kSpacing);
    rows->addLayout(options);
    rows->addLayout(place);
    toFile_->setChecked(true);
    return frame;
}

QLayout* ScheduledReportsWindow::ParameterRows() {
    auto* grid = Grid();
    AddParameter(*grid, 0, 0, Parameter::Account, "Account:");
    AddParameter(*grid, 1, 0, Parameter::Date, "Date:");
    AddParameter(*grid, 2, 0, Parameter::Duration, "Duration:");
    AddParameter(*grid, 0, 2, Parameter::Extension, "Extension:");
    AddParameter(*grid, 1, 2, Parameter::Site, "Site:");
    AddTimes(*grid, 2, 2);
    grid->setColumnStretch(4, 1);
    return grid;
}

void ScheduledReportsWindow::AddParameter(QGridLayout& grid, int row, int column, Parameter parameter,
                                          const QString& caption) {
    auto* field = new QLineEdit;
    field->setFixedWidth(kFieldWidth);
    auto* label = toolkit::LabelOf(caption, field);
    grid.addWidget(label, row, column);
    grid.addWidget(field, row, column + 1);
    parameters_.at(static_cast<std::size_t>(parameter)) = {label, field, field};
}

void ScheduledReportsWindow::AddTimes(QGridLayout& grid, int row, int column) {
    QWidget* label = nullptr;
    for (const Parameter parameter : {Parameter::TimeStart, Parameter::TimeFinish}) {
        auto* list = toolkit::MakeTimeList();
        list->setAccessibleName("Time:");
        if (label == nullptr) grid.addWidget(label = toolkit::LabelOf("Time:", list), row, column);
        grid.addWidget(list, row++, column + 1);
        parameters_.at(static_cast<std::size_t>(parameter)) = {label, list->lineEdit(), list};
    }
}

QLayout* ScheduledReportsWindow::TaskColumn() {
    tasks_->setModel(taskNames_);
    tasks_->setUniformItemSizes(true);
    tasks_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tasks_->setFixedWidth(kTasksWidth);
    tasks_->setMinimumHeight(kTasksHeight);
    auto* label = toolkit::LabelOf("Current Tasks", tasks_);
    auto* rows = new QVBoxLayout;
    rows->setSpacing(toolkit::kSpacing);
    rows->addWidget(label);
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
    connect(report_, &QComboBox::currentIndexChanged, this, &ScheduledReportsWindow::EnableParameters);
    connect(save_, &QPushButton::clicked, this, &ScheduledReportsWindow::SaveSchedule);
    connect(tasks_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ScheduledReportsWindow::EnableTaskButtons);
    connect(create_, &QPushButton::clicked, this, &ScheduledReportsWindow::CreateNew);
    connect(edit_, &QPushButton::clicked, this, &ScheduledReportsWindow::EditSelected);
    connect(delete_, &QPushButton::clicked, this, &ScheduledReportsWindow::DeleteSelected);
}

void ScheduledReportsWindow::OnLoad() {
    report_->addItems(toolkit::ToQStringList(ListPresetReports(application_)));
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

// What a report cannot use is emptied, so that it is not stored.
void ScheduledReportsWindow::EnableParameters() {
    const auto usable = UsableParameters(application_, report_->currentText().toStdString());
    for (std::size_t i = 0; i < kParameters; ++i) {
        const ParameterInput& parameter = parameters_.at(i);
        parameter.label->setEnabled(usable.at(i));
        parameter.input->setEnabled(usable.at(i));
        if (!usable.at(i)) parameter.field->clear();
    }
}

void ScheduledReportsWindow::ChooseFolder() {
    const auto folder = application_.prompts.AskFolder("Select Output Folder");
    if (folder) location_->setText(toolkit::ToQString(folder->string()) + "\\");
}

void ScheduledReportsWindow::BeginDefinition(bool editing) {
    editing_ = editing;
    name_->setEnabled(!editing);
    definition_->setEnabled(true);
    tasks_->clearSelection();
    tasks_->setEnabled(false);
    (editing ? static_cast<QWidget*>(report_) : name_)->setFocus();
}

void ScheduledReportsWindow::EndDefinition() {
    editing_ = false;
    name_->clear();
    location_->clear();
    report_->setCurrentIndex(-1);
    EnableParameters();
    frequencies_->setExclusive(false);
    for (QAbstractButton* option : frequencies_->buttons()) option->setChecked(false);
    frequencies_->setExclusive(true);
    definition_->setEnabled(false);
    tasks_->setEnabled(true);
    create_->setFocus();
}

void ScheduledReportsWindow::CreateNew() {
    name_->clear();
    location_->clear();
    toFile_->setChecked(true);
    BeginDefinition(false);
}

void ScheduledReportsWindow::EditSelected() {
    const QString name = SelectedTask();
    const ScheduledReport stored = ReadSchedule(application_, name.toStdString());
    if (stored.DeliversToFile()) toFile_->setChecked(true);
    if (stored.output == "Email") byMail_->setChecked(true);
    location_->setText(toolkit::ToQString(stored.outputLocation));
    name_->setText(name);
    BeginDefinition(true);
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

Schedule ScheduledReportsWindow::Defined() const {
    Schedule schedule;
    schedule.name = name_->text().toStdString();
    schedule.report = report_->currentText().toStdString();
    const int frequency = frequencies_->checkedId();
    if (frequency >= 0) schedule.frequency = kFrequencies.at(frequency);
    schedule.toFile = toFile_->isChecked();
    schedule.location = location_->text().toStdString();
    for (std::size_t i = 0; i < kParameters; ++i) {
        schedule.parameters.at(i) = parameters_.at(i).field->text().toStdString();
    }
    return schedule;
}

// Events run while the task is made: nothing is saved a second time by then, and the window
// stays. The list shows a schedule that was edited twice until it is read anew.
void ScheduledReportsWindow::SaveSchedule() {
    const Schedule schedule = Defined();
    if (const auto refusal = RefusalOf(schedule)) {
        application_.prompts.Show(*refusal);
        return;
    }
    {
        const toolkit::HeldWindow held(*this);
        tallix::SaveSchedule(application_, schedule, editing_);
    }
    taskNames_->setStringList(taskNames_->stringList() << toolkit::ToQString(schedule.name));
    EndDefinition();
}

}  // namespace tallix
