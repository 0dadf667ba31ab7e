#include "reporting/preset_reports_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "foundation/access_rights.h"
#include "foundation/form_names.h"
#include "reporting/destinations_window.h"
#include "reporting/external_applications.h"
#include "reporting/report_run.h"
#include "ui/dialog_keys.h"
#include "ui/forms.h"
#include "ui/main_menu_form.h"
#include "ui/style.h"

namespace tallix {
namespace {

constexpr int kListWidth = 34 * ui::kGrid;
constexpr int kFieldWidth = 20 * ui::kGrid;
constexpr int kShownTimes = 12;

QStringList Texts(const std::vector<std::string>& list) {
    QStringList texts;
    for (const std::string& text : list) texts << QString::fromStdString(text);
    return texts;
}

std::string TextOf(const QComboBox& list) {
    return list.currentText().toStdString();
}

std::string TextOf(const QLineEdit& field) {
    return field.text().toStdString();
}

// Holds every minute of the day, and nothing until a person chooses or types one.
QComboBox* TimeList() {
    auto* list = new QComboBox;
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setMaxVisibleItems(kShownTimes);
    list->addItems(Texts(MinutesOfTheDay()));
    list->setCurrentIndex(-1);
    list->setFixedWidth(kFieldWidth);
    return list;
}

}  // namespace

PresetReportsWindow::PresetReportsWindow(ui::Forms& forms, Application& application, ReportFlags& flags,
                                         ui::Printers& printers)
    : Form(forms, "Tallix Reports Tool - Preset Reports"),
      application_(application),
      flags_(flags),
      printers_(printers),
      content_(new QWidget(this)),
      reports_(new QListView),
      reportNames_(new QStringListModel(this)),
      timeFrom_(TimeList()),
      timeTo_(TimeList()),
      extension_(new QLineEdit),
      account_(new QLineEdit),
      site_(new QComboBox),
      group_(new QComboBox),
      duration_(new QLineEdit),
      greaterThan_(new QRadioButton("Greater Than")),
      lessThan_(new QRadioButton("Less Than")),
      graph_(new QCheckBox("GRAPH", this)),
      destinationFrame_(new QGroupBox("Output Report")),
      onScreen_(new QRadioButton("On Screen")),
      toPrinter_(new QRadioButton("To Printer")),
      inApplication_(new QRadioButton("In External Application")),
      printerList_(new QComboBox),
      applicationList_(new QComboBox),
      run_(new QPushButton("Run Report")),
      cancel_(new QPushButton("Cancel")),
      calendar_(new ui::CalendarPanel(this)),
      progress_(new ui::ProgressPanel(*this, "Please Wait", "Your selected report is being generated.")),
      records_(&progress_->AddLine(application.events, "Processing Record %1 Of %2")) {
    graph_->hide();
    auto* columns = new QHBoxLayout(content_);
    columns->setContentsMargins(ui::kMargin, ui::kMargin, ui::kMargin, ui::kMargin);
    columns->setSpacing(ui::kMargin);
    columns->addWidget(ReportColumn());
    columns->addLayout(FilterColumn(), 1);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(content_);
    NameInputs();
    ConnectInputs();
    EnableInputs({});
    EnableDestinationLists();
    new ui::DialogKeys(*this, run_, cancel_);
}

QWidget* PresetReportsWindow::ReportColumn() {
    auto* column = new QWidget;
    auto* label = new QLabel("Available Reports");
    label->setBuddy(reports_);
    reports_->setAccessibleName(label->text());  // a list is not told its label
    reports_->setModel(reportNames_);
    reports_->setUniformItemSizes(true);
    reports_->setSpacing(ui::kGrid / 4);
    reports_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(ui::kSpacing);
    rows->addWidget(label);
    rows->addWidget(reports_);
    column->setFixedWidth(kListWidth);
    return column;
}

QLayout* PresetReportsWindow::FilterColumn() {
    FillDestinationFrame();
    auto* rows = new QVBoxLayout;
    rows->setSpacing(ui::kMargin);
    rows->addLayout(FilterGrid());
    rows->addWidget(destinationFrame_);
    rows->addStretch();
    rows->addLayout(ButtonRow());
    return rows;
}

QGridLayout* PresetReportsWindow::FilterGrid() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(ui::kSpacing * 2);
    grid->setVerticalSpacing(ui::kSpacing);
    for (QWidget* field :
         {static_cast<QWidget*>(extension_), static_cast<QWidget*>(account_), static_cast<QWidget*>(site_),
          static_cast<QWidget*>(group_), static_cast<QWidget*>(duration_)}) {
        field->setFixedWidth(kFieldWidth);
    }
    AddDateRows(*grid);
    AddRow(*grid, Input::Time, "Time:", {timeFrom_, timeTo_});
    AddRow(*grid, Input::Extension, "Extension:", {extension_});
    AddRow(*grid, Input::Account, "Account Code:", {account_});
    AddRow(*grid, Input::Site, "Site:", {site_});
    AddRow(*grid, Input::Group, "Group:", {group_});
    AddRow(*grid, Input::Duration, "Duration:", {duration_, greaterThan_, lessThan_});
    return grid;
}

void PresetReportsWindow::AddRow(QGridLayout& grid, Input input, const QString& caption,
                                 const std::vector<QWidget*>& inputs) {
    auto* label = new QLabel(caption);
    label->setBuddy(inputs.front());
    auto* row = new QHBoxLayout;
    row->setSpacing(ui::kSpacing * 2);
    for (QWidget* widget : inputs) row->addWidget(widget);
    row->addStretch();
    const int line = grid.rowCount();
    grid.addWidget(label, line, 0);
    grid.addLayout(row, line, 1);
    std::vector<QWidget*>& all = inputs_.at(static_cast<std::size_t>(input));
    all.push_back(label);
    all.insert(all.end(), inputs.begin(), inputs.end());
}

// One label for both; each date has its box for a name.
void PresetReportsWindow::AddDateRows(QGridLayout& grid) {
    start_ = MakeDateInput("Start Date");
    end_ = MakeDateInput("End Date");
    AddRow(grid, Input::Date, "Date:", {start_.box, start_.field, start_.calendar});
    AddRow(grid, Input::Date, "", {end_.box, end_.field, end_.calendar});
    const int boxWidth = std::max(start_.box->sizeHint().width(), end_.box->sizeHint().width());
    for (QCheckBox* box : {start_.box, end_.box}) box->setFixedWidth(boxWidth);
}

PresetReportsWindow::DateInput PresetReportsWindow::MakeDateInput(const QString& caption) {
    const DateInput input = {new QCheckBox(caption), new QLineEdit, new QPushButton("...")};
    input.field->setAccessibleName(caption);
    input.field->setFixedWidth(kFieldWidth);
    input.calendar->setToolTip("Show calendar");
    connect(input.field, &QLineEdit::textChanged, input.box,
            [box = input.box](const QString& text) { box->setChecked(!text.isEmpty()); });
    connect(input.calendar, &QPushButton::clicked, this, [this, input] { OpenCalendar(input); });
    return input;
}

void PresetReportsWindow::NameInputs() {
    timeTo_->setAccessibleName("Time:");
    printerList_->setAccessibleName(toPrinter_->text());
    applicationList_->setAccessibleName(inApplication_->text());
    duration_->setToolTip("Enter a duration (eg 00:01:00)");
    run_->setToolTip("Click here to run the report");
    cancel_->setToolTip("Click here to close");
}

void PresetReportsWindow::FillDestinationFrame() {
    auto* grid = new QGridLayout(destinationFrame_);
    grid->setContentsMargins(ui::kSpacing * 2, ui::kSpacing * 2, ui::kSpacing * 2, ui::kSpacing * 2);
    grid->setHorizontalSpacing(ui::kSpacing * 2);
    grid->setVerticalSpacing(ui::kSpacing);
    grid->addWidget(onScreen_, 0, 0);
    grid->addWidget(toPrinter_, 1, 0);
    grid->addWidget(printerList_, 1, 1);
    grid->addWidget(inApplication_, 2, 0);
    grid->addWidget(applicationList_, 2, 1);
    grid->setColumnStretch(1, 1);
    onScreen_->setChecked(true);
    greaterThan_->setChecked(true);
}

QLayout* PresetReportsWindow::ButtonRow() {
    run_->setEnabled(false);
    auto* row = new QHBoxLayout;
    row->setSpacing(ui::kSpacing);
    row->addStretch();
    row->addWidget(run_);
    row->addWidget(cancel_);
    return row;
}

void PresetReportsWindow::ConnectInputs() {
    connect(reports_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PresetReportsWindow::SelectReport);
    connect(reports_, &QListView::clicked, this, &PresetReportsWindow::SelectReport);
    for (const QRadioButton* option : {onScreen_, toPrinter_, inApplication_}) {
        connect(option, &QRadioButton::toggled, this, &PresetReportsWindow::EnableDestinationLists);
    }
    connect(calendar_, &ui::CalendarPanel::DayClicked, this, &PresetReportsWindow::TakeDay);
    connect(run_, &QPushButton::clicked, this, &PresetReportsWindow::RunReport);
    connect(cancel_, &QPushButton::clicked, this, &QWidget::close);
}

void PresetReportsWindow::OnLoad() {
    FillLists();
    destinationFrame_->setVisible(
        Allows(application_.session.CurrentAccess, AccessRight::PresetReportDestination));
    reports_->setFocus();
}

// No printer and no application is chosen before the person does it.
void PresetReportsWindow::FillLists() {
    const PresetChoices choices = ReadPresetChoices(application_);
    reportNames_->setStringList(Texts(choices.reports));
    site_->addItems(Texts(choices.sites));
    group_->addItems(Texts(choices.groups));
    printerList_->addItems(Texts(printers_.Names()));
    applicationList_->addItems(Texts(ExternalApplications(application_.settings)));
    for (QComboBox* list : {printerList_, applicationList_}) list->setCurrentIndex(-1);
}

void PresetReportsWindow::OnUnload() {
    ui::ShowMainMenu(OtherForms(), application_.session);
}

void PresetReportsWindow::closeEvent(QCloseEvent* event) {
    if (running_) return event->ignore();
    Form::closeEvent(event);
}

// A click on the report that is selected already reads its file anew.
void PresetReportsWindow::SelectReport() {
    run_->setEnabled(reports_->selectionModel()->hasSelection());
    EnableInputs(EnabledInputs(Describe().reportFile));
}

void PresetReportsWindow::EnableInputs(const EnabledInputs& enabled) {
    enabled_ = enabled;
    for (std::size_t input = 0; input < kInputs; ++input) {
        for (QWidget* widget : inputs_.at(input)) widget->setEnabled(enabled[static_cast<Input>(input)]);
    }
}

void PresetReportsWindow::EnableDestinationLists() {
    printerList_->setEnabled(toPrinter_->isChecked());
    applicationList_->setEnabled(inApplication_->isChecked());
}

void PresetReportsWindow::OpenCalendar(const DateInput& asking) {
    asking_ = asking;
    const DateTime now = application_.clock.Now();
    calendar_->Open(QDate(now.year, now.month, now.day), *asking.field);
}

// The box is ticked even where the field held this very day.
void PresetReportsWindow::TakeDay(const QDate& day) {
    asking_.field->setText(QString::fromStdString(ShortDate({day.year(), day.month(), day.day()})));
    asking_.box->setChecked(true);
}

RunDescription PresetReportsWindow::Describe() const {
    const QModelIndex selected = reports_->selectionModel()->selectedIndexes().value(0);
    const std::string name = selected.data().toString().toStdString();
    return {.reportName = name,
            .reportFile = PresetReportFile(application_.folder, name),
            .inputs = {.extension = TextOf(*extension_),
                       .account = TextOf(*account_),
                       .site = TextOf(*site_),
                       .group = TextOf(*group_),
                       .startDate = TextOf(*start_.field),
                       .endDate = TextOf(*end_.field),
                       .timeFrom = TextOf(*timeFrom_),
                       .timeTo = TextOf(*timeTo_)},
            .commaText = inApplication_->isChecked(),
            .demandsExtension = enabled_[Input::Extension],
            .demandsAccount = enabled_[Input::Account],
            .drawsGraph = graph_->isChecked(),
            .rules = kPresetRules};
}

DestinationChoice PresetReportsWindow::Choice() const {
    DestinationChoice choice = {.printer = TextOf(*printerList_), .application = TextOf(*applicationList_)};
    if (toPrinter_->isChecked()) choice.destination = Destination::ToPrinter;
    if (inApplication_->isChecked()) choice.destination = Destination::InExternalApplication;
    return choice;
}

void PresetReportsWindow::RunReport() {
    const RunDescription description = Describe();
    BeginRun();
    const RunOutcome outcome = ReportRun(application_, flags_, *records_).Make(description);
    switch (outcome) {
        case RunOutcome::Refused:
            return Refuse(*RefusalOf(description));
        case RunOutcome::NoData:
            return TellNoData();
        case RunOutcome::Complete:
            return Deliver();
    }
}

// The person may click and type while a run serves the events: nothing but the window's
// frame answers, and the run works on what was filled in before.
void PresetReportsWindow::BeginRun() {
    running_ = true;
    content_->setEnabled(false);
    records_->Reset();
    progress_->show();
    application_.events.Serve();
}

void PresetReportsWindow::EndRun() {
    running_ = false;
    progress_->hide();
    content_->setEnabled(true);
}

void PresetReportsWindow::Refuse(const Message& refusal) {
    application_.prompts.Show(refusal);
    Unload();
}

void PresetReportsWindow::TellNoData() {
    Unload();
    application_.prompts.Show(NoDataMessage());
}

// With no printer of the chosen name the window stays, for another choice.
void PresetReportsWindow::Deliver() {
    records_->ShowText("Transferring To Report Viewer...");
    ui::Forms& forms = OtherForms();
    DeliverReport(forms, application_, printers_, Choice(), kPresetReportsForm);
    if (forms.Find(kPresetReportsForm) == this) EndRun();
}

}  // namespace tallix
