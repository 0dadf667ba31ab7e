#include "windows/reporting/custom_reports_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "reporting/catalogue.h"
#include "session/access_log.h"
#include "session/access_rights.h"
#include "toolkit/button_row.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/label.h"
#include "toolkit/style.h"
#include "toolkit/text.h"
#include "windows/reporting/input_text.h"

namespace tallix {
namespace {

constexpr int kListWidth = 34 * toolkit::kGrid;
constexpr int kFieldListWidth = 28 * toolkit::kGrid;
constexpr int kFieldWidth = 20 * toolkit::kGrid;

constexpr char kNewReport[] = "<Create New Report>";
constexpr char kFirstName[] = "New Report 1";

// The text editor gets a path in a folder that does not hold the file. People know by now
// which applications open the report and which do not.
constexpr char kEditorFile[] = "\\Reports\\rpt.csv";

QVBoxLayout* Column() {
    auto* column = new QVBoxLayout;
    column->setSpacing(toolkit::kSpacing);
    return column;
}

}  // namespace

CustomReportsWindow::CustomReportsWindow(toolkit::Forms& forms, Application& application,
                                         toolkit::Printers& printers)
    : ReportRunForm(forms, "Tallix Reports Tool - Custom Reports", application, printers),
      reports_(new QListWidget),
      name_(new QLineEdit),
      nameLabel_(toolkit::LabelOf("Report Name:", name_)),
      fields_(new QListWidget),
      data_(new QGroupBox("Data")),
      account_(new QLineEdit),
      duration_(new QLineEdit),
      greater_(new QRadioButton("Greater Than")),
      less_(new QRadioButton("Less Than")),
      neither_(new QRadioButton(data_)),
      start_(new toolkit::DateInput("Start Date", application.clock, toolkit::DateBox::EnablesCalendar)),
      end_(new toolkit::DateInput("End Date", application.clock, toolkit::DateBox::EnablesCalendar)),
      extension_(new QLineEdit),
      delete_(new QPushButton("Delete Report")),
      save_(new QPushButton("Save Report")),
      run_(new QPushButton("Run Report")),
      cancel_(new QPushButton("Cancel")) {
    auto* columns = new QHBoxLayout;
    columns->setSpacing(toolkit::kMargin);
    columns->addLayout(ReportsColumn());
    columns->addLayout(FieldColumn());
    columns->addLayout(FilterColumn(), 1);
    auto* rows = new QVBoxLayout(Content());
    rows->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    rows->setSpacing(toolkit::kMargin);
    rows->addLayout(columns, 1);
    rows->addLayout(ButtonRow());
    neither_->hide();
    ConnectInputs();
    new toolkit::DialogKeys(*this, run_, cancel_);
}

QLayout* CustomReportsWindow::ReportsColumn() {
    auto* column = Column();
    column->addWidget(toolkit::LabelOf("Available Reports", reports_));
    column->addWidget(reports_, 1);
    reports_->setFixedWidth(kListWidth);
    return column;
}

QLayout* CustomReportsWindow::FieldColumn() {
    auto* column = Column();
    column->addWidget(nameLabel_);
    column->addWidget(name_);
    column->addSpacing(toolkit::kSpacing);
    column->addWidget(toolkit::LabelOf("Select data you wish to show", fields_));
    column->addWidget(fields_, 1);
    for (QListWidget* list : {reports_, fields_}) list->setSpacing(toolkit::kGrid / 4);
    fields_->setMinimumHeight(static_cast<int>(kCustomFields + 1) * 3 * toolkit::kGrid);
    for (QWidget* widget : {static_cast<QWidget*>(name_), static_cast<QWidget*>(fields_)}) {
        widget->setFixedWidth(kFieldListWidth);
    }
    return column;
}

// The style comes first, so that the rows get their final height.
void CustomReportsWindow::FillFields() {
    fields_->ensurePolished();
    for (const ReportColumn* column : kCustomColumns) {
        auto* item = new QListWidgetItem(toolkit::ToQString(column->custom.entry), fields_);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
}

QLayout* CustomReportsWindow::FilterColumn() {
    auto* column = Column();
    column->setSpacing(toolkit::kMargin);
    column->addWidget(DataFrame());
    column->addWidget(&Output());
    column->addStretch();
    return column;
}

QWidget* CustomReportsWindow::DataFrame() {
    auto* grid = new QGridLayout(data_);
    grid->setContentsMargins(toolkit::kSpacing * 2, toolkit::kSpacing * 2, toolkit::kSpacing * 2,
                             toolkit::kSpacing * 2);
    grid->setHorizontalSpacing(toolkit::kSpacing * 2);
    grid->setVerticalSpacing(toolkit::kSpacing);
    const auto add = [grid](int row, std::initializer_list<QWidget*> widgets) {
        int column = 0;
        for (QWidget* widget : widgets) grid->addWidget(widget, row, column++);
    };
    add(0, {toolkit::LabelOf("Account Code:", account_), account_});
    add(1, {toolkit::LabelOf("Duration:", duration_), duration_, greater_, less_});
    for (int row = 2; toolkit::DateInput * date : {start_, end_}) {
        grid->addWidget(&date->Box(), row, 0);
        grid->addWidget(date, row++, 1, 1, 3);
    }
    add(4, {toolkit::LabelOf("Extension:", extension_), extension_});
    for (QLineEdit* field : {account_, duration_, extension_}) {
        field->setFixedWidth(kFieldWidth);
    }
    grid->setColumnStretch(4, 1);
    duration_->setToolTip("Enter a duration (eg 00:01:00)");
    return data_;
}

QLayout* CustomReportsWindow::ButtonRow() {
    save_->setToolTip("Click here to save this report");
    delete_->setToolTip("Click here to delete this report");
    run_->setToolTip("Click here to run the report");
    cancel_->setToolTip("Click here to close");
    return toolkit::ButtonRow({delete_}, {save_, run_, cancel_});
}

void CustomReportsWindow::ConnectInputs() {
    connect(reports_, &QListWidget::itemSelectionChanged, this, &CustomReportsWindow::SelectReport);
    connect(reports_, &QListWidget::itemClicked, this, &CustomReportsWindow::SelectReport);
    connect(save_, &QPushButton::clicked, this, &CustomReportsWindow::Save);
    connect(run_, &QPushButton::clicked, this, &CustomReportsWindow::RunReport);
    connect(cancel_, &QPushButton::clicked, this, &QWidget::close);
}

void CustomReportsWindow::OnLoad() {
    const Session& session = Program().session;
    for (QWidget* input :
         {static_cast<QWidget*>(data_), static_cast<QWidget*>(nameLabel_), static_cast<QWidget*>(name_),
          static_cast<QWidget*>(save_), static_cast<QWidget*>(run_)}) {
        input->setEnabled(false);
    }
    // The right of call cost mappings opens new reports; the right of that name has no effect.
    if (Allows(session.CurrentAccess, AccessRight::CallCostMappings)) reports_->addItem(kNewReport);
    reports_->addItems(toolkit::ToQStringList(ListReports(CustomReportsFolder(session.ReportsLocation))));
    FillFields();
    FillOutput();
    ApplyRights();
    reports_->setFocus();
}

void CustomReportsWindow::ApplyRights() {
    const AccessRights& access = Program().session.CurrentAccess;
    const bool saves = Allows(access, AccessRight::SaveCustomReport);
    delete_->setVisible(Allows(access, AccessRight::DeleteCustomReport));
    save_->setVisible(saves);
    fields_->setEnabled(saves);
    Output().setVisible(Allows(access, AccessRight::CustomReportDestination));
}

// A click on the report that is selected already reads its file anew.
void CustomReportsWindow::SelectReport() {
    const QList<QListWidgetItem*> selected = reports_->selectedItems();
    if (selected.isEmpty()) return;
    run_->setEnabled(true);
    save_->setEnabled(true);
    const QString entry = selected.first()->text();
    if (entry == kNewReport) {
        BeginNewReport();
    } else {
        OpenReport(entry);
    }
}

void CustomReportsWindow::BeginNewReport() {
    for (QWidget* input : {static_cast<QWidget*>(fields_), static_cast<QWidget*>(data_),
                           static_cast<QWidget*>(nameLabel_), static_cast<QWidget*>(name_)}) {
        input->setEnabled(true);
    }
    name_->setText(kFirstName);
    CustomReport empty;
    empty.destination = Output().Choice().destination;
    empty.application = Output().Choice().application;
    Show(empty);
}

void CustomReportsWindow::OpenReport(const QString& name) {
    name_->setText(name);
    CustomReport report = Described();
    ReadCustomReport(Program().session.ReportsLocation, name.toStdString(), report);
    Show(report);
}

void CustomReportsWindow::Show(const CustomReport& report) {
    for (std::size_t i = 0; i < kCustomFields; ++i) {
        fields_->item(static_cast<int>(i))->setCheckState(report.shown.at(i) ? Qt::Checked : Qt::Unchecked);
    }
    account_->setText(toolkit::ToQString(report.account));
    duration_->setText(toolkit::ToQString(report.duration));
    ButtonOf(report.durationTest)->setChecked(true);
    start_->SetText(report.startDate);
    end_->SetText(report.endDate);
    for (const toolkit::DateInput* date : {start_, end_}) date->Box().setChecked(!date->Text().empty());
    extension_->setText(toolkit::ToQString(report.extension));
    Output().Choose(report.destination, report.application);
}

CustomReport CustomReportsWindow::Described() const {
    const DestinationChoice choice = Output().Choice();
    CustomReport report = {.account = TextOf(*account_),
                           .duration = TextOf(*duration_),
                           .durationTest = ChosenTest(),
                           .startDate = start_->Text(),
                           .endDate = end_->Text(),
                           .extension = TextOf(*extension_),
                           .destination = choice.destination,
                           .application = choice.application};
    for (std::size_t i = 0; i < kCustomFields; ++i) {
        report.shown.at(i) = fields_->item(static_cast<int>(i))->checkState() == Qt::Checked;
    }
    return report;
}

void CustomReportsWindow::Save() {
    const std::string name = TextOf(*name_);
    WriteCustomReport(Program().session.ReportsLocation, name, Described());
    Program().prompts.Show({"Report", "Report Saved!", MessageIcon::Information});
    LogOnItsOwn(Program().session, Program().clock, "Report Created - " + name);
}

void CustomReportsWindow::RunReport() {
    extension_->setText(toolkit::ToQString(FullExtension(TextOf(*extension_))));
    DestinationChoice choice = Output().Choice();
    choice.editorFile = kEditorFile;
    Run({.reportName = TextOf(*name_), .kind = CustomRun{Described()}}, choice);
}

QRadioButton* CustomReportsWindow::ButtonOf(DurationTest test) const {
    switch (test) {
        case DurationTest::Greater:
            return greater_;
        case DurationTest::Less:
            return less_;
        case DurationTest::None:
            break;
    }
    return neither_;
}

DurationTest CustomReportsWindow::ChosenTest() const {
    if (greater_->isChecked()) return DurationTest::Greater;
    return less_->isChecked() ? DurationTest::Less : DurationTest::None;
}

Message CustomReportsWindow::NoDataMessage() const {
    return {"Tallix Reports", "No data matches your query!", MessageIcon::Critical};
}

}  // namespace tallix
