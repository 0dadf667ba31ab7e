#include "windows/reporting/preset_reports_window.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "session/access_rights.h"
#include "toolkit/button_row.h"
#include "toolkit/choice_lists.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/label.h"
#include "toolkit/style.h"
#include "toolkit/text.h"
#include "windows/reporting/input_text.h"

namespace tallix {
namespace {

constexpr int kListWidth = 34 * toolkit::kGrid;
constexpr int kFieldWidth = 20 * toolkit::kGrid;

}  // namespace

PresetReportsWindow::PresetReportsWindow(toolkit::Forms& forms, Application& application, ReportFlags& flags,
                                         toolkit::Printers& printers)
    : ReportRunForm(forms, "Tallix Reports Tool - Preset Reports", application, printers),
      flags_(flags),
      reports_(new QListView),
      reportNames_(new QStringListModel(this)),
      start_(new toolkit::DateInput("Start Date", application.clock, toolkit::DateBox::FollowsText)),
      end_(new toolkit::DateInput("End Date", application.clock, toolkit::DateBox::FollowsText)),
      timeFrom_(toolkit::MakeTimeList()),
      timeTo_(toolkit::MakeTimeList()),
      extension_(new QLineEdit),
      account_(new QLineEdit),
      site_(new QComboBox),
      group_(new QComboBox),
      duration_(new QLineEdit),
      greaterThan_(new QRadioButton("Greater Than")),
      lessThan_(new QRadioButton("Less Than")),
      graph_(new QCheckBox("GRAPH", this)),
      run_(new QPushButton("Run Report")),
      cancel_(new QPushButton("Cancel")) {
    graph_->hide();
    auto* columns = new QHBoxLayout(Content());
    columns->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    columns->setSpacing(toolkit::kMargin);
    columns->addWidget(ReportsColumn());
    columns->addLayout(FilterColumn(), 1);
    greaterThan_->setChecked(true);
    NameInputs();
    ConnectInputs();
    EnableInputs({});
    new toolkit::DialogKeys(*this, run_, cancel_);
}

QWidget* PresetReportsWindow::ReportsColumn() {
    auto* column = new QWidget;
    reports_->setModel(reportNames_);
    reports_->setUniformItemSizes(true);
    reports_->setSpacing(toolkit::kGrid / 4);
    reports_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(toolkit::kSpacing);
    rows->addWidget(toolkit::LabelOf("Available Reports", reports_));
    rows->addWidget(reports_);
    column->setFixedWidth(kListWidth);
    return column;
}

QLayout* PresetReportsWindow::FilterColumn() {
    auto* rows = new QVBoxLayout;
    rows->setSpacing(toolkit::kMargin);
    rows->addLayout(FilterGrid());
    rows->addWidget(&Output());
    rows->addStretch();
    rows->addLayout(ButtonRow());
    return rows;
}

QGridLayout* PresetReportsWindow::FilterGrid() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(toolkit::kSpacing * 2);
    grid->setVerticalSpacing(toolkit::kSpacing);
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
    QLabel* label = toolkit::LabelOf(caption, inputs.front());
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing * 2);
    for (QWidget* widget : inputs) row->addWidget(widget);
    row->addStretch();
    const int line = grid.rowCount();
    grid.addWidget(label, line, 0);
    grid.addLayout(row, line, 1);
    std::vector<QWidget*>& all = inputs_.at(static_cast<std::size_t>(input));
    all.push_back(label);
    all.insert(all.end(), inputs.begin(), inputs.end());
}

// One label for both dates; each is named by its box.
void PresetReportsWindow::AddDateRows(QGridLayout& grid) {
    QCheckBox& start = start_->Box();
    QCheckBox& end = end_->Box();
    for (QCheckBox* box : {&start, &end}) box->setAccessibleName(box->text());
    AddRow(grid, Input::Date, "Date:", {&start, start_});
    AddRow(grid, Input::Date, "", {&end, end_});
    const int boxWidth = std::max(start.sizeHint().width(), end.sizeHint().width());
    for (QCheckBox* box : {&start, &end}) box->setFixedWidth(boxWidth);
}

void PresetReportsWindow::NameInputs() {
    timeTo_->setAccessibleName("Time:");
    duration_->setToolTip("Enter a duration (eg 00:01:00)");
    run_->setToolTip("Click here to run the report");
    cancel_->setToolTip("Click here to close");
}

QLayout* PresetReportsWindow::ButtonRow() {
    run_->setEnabled(false);
    return toolkit::ButtonRow({}, {run_, cancel_});
}

void PresetReportsWindow::ConnectInputs() {
    connect(reports_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PresetReportsWindow::SelectReport);
    connect(reports_, &QListView::clicked, this, &PresetReportsWindow::SelectReport);
    connect(run_, &QPushButton::clicked, this, &PresetReportsWindow::RunReport);
    connect(cancel_, &QPushButton::clicked, this, &QWidget::close);
}

void PresetReportsWindow::OnLoad() {
    FillLists();
    Output().setVisible(Allows(Program().session.CurrentAccess, AccessRight::PresetReportDestination));
    reports_->setFocus();
}

void PresetReportsWindow::FillLists() {
    const PresetChoices choices = ReadPresetChoices(Program());
    reportNames_->setStringList(toolkit::ToQStringList(choices.reports));
    site_->addItems(toolkit::ToQStringList(choices.sites));
    group_->addItems(toolkit::ToQStringList(choices.groups));
    FillOutput();
}

// A click on the report that is selected already reads its file anew.
void PresetReportsWindow::SelectReport() {
    run_->setEnabled(reports_->selectionModel()->hasSelection());
    EnableInputs(EnabledInputs(PresetReportFile(Program().folder, SelectedReport())));
}

void PresetReportsWindow::EnableInputs(const EnabledInputs& enabled) {
    enabled_ = enabled;
    for (std::size_t input = 0; input < kInputs; ++input) {
        for (QWidget* widget : inputs_.at(input)) widget->setEnabled(enabled[static_cast<Input>(input)]);
    }
}

void PresetReportsWindow::RunReport() {
    Run({.reportName = SelectedReport(), .kind = Describe()}, Output().Choice());
}

std::string PresetReportsWindow::SelectedReport() const {
    const QModelIndex selected = reports_->selectionModel()->selectedIndexes().value(0);
    return selected.data().toString().toStdString();
}

PresetRun PresetReportsWindow::Describe() const {
    const bool inApplication = Output().Choice().destination == Destination::InExternalApplication;
    return {.flags = flags_,
            .reportFile = PresetReportFile(Program().folder, SelectedReport()),
            .inputs = {.extension = TextOf(*extension_),
                       .account = TextOf(*account_),
                       .site = TextOf(*site_),
                       .group = TextOf(*group_),
                       .startDate = start_->Text(),
                       .endDate = end_->Text(),
                       .timeFrom = TextOf(*timeFrom_),
                       .timeTo = TextOf(*timeTo_)},
            .output = inApplication ? PageOutput::CommaText : PageOutput::Html,
            .demandsExtension = enabled_[Input::Extension],
            .demandsAccount = enabled_[Input::Account],
            .drawsGraph = graph_->isChecked()};
}

}  // namespace tallix
