#include "windows/reporting/custom_reports_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "reporting/catalogue.h"
#include "session/access_log.h"
#include "session/access_rights.h"
#include "toolkit/button_row.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

constexpr int kListWidth = 34 * toolkit::kGrid;
constexpr int kFieldListWidth = 28 * toolkit::kGrid;
constexpr int kFieldWidth = 20 * toolkit::kGrid;

constexpr char kNewReport[] = "<Create New Report>";
constexpr char kFirstName[] = "New Report 1";

// The text editor is told a folder that does not hold the file. Kept: what opens, and
// what does not, is known by now.
constexpr char kEditorFile[] = "\\Reports\\rpt.csv";

/// A date field whose double click brings its calendar button to life.
class DateField : public QLineEdit {
public:
    explicit DateField(QPushButton& calendar) : calendar_(calendar) {}

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        calendar_.setEnabled(true);
        QLineEdit::mouseDoubleClickEvent(event);
    }

private:
    QPushButton& calendar_;
};

QLabel* LabelOf(QWidget* input, const QString& text) {
    auto* label = new QLabel(text);
    label->setBuddy(input);
    return label;
}

QVBoxLayout* Column() {
    auto* column = new QVBoxLayout;
    column->setSpacing(toolkit::kSpacing);
    return column;
}

}  // namespace

CustomReportsWindow::CustomReportsWindow(toolkit::Forms& forms, Application& application,
                                         toolkit::Printers& printers)
    : ReportRunWindow(forms, "Tallix Reports Tool - Custom Reports", application, printers),
      reports_(new QListWidget),
      name_(new QLineEdit),
      nameLabel_(LabelOf(name_, "Report Name:")),
      fields_(new QListWidget),
      data_(new QGroupBox("Data")),
      account_(new QLineEdit),
      duration_(new QLineEdit),
      greater_(new QRadioButton("Greater Than")),
      less_(new QRadioButton("Less Than")),
      neither_(new QRadioButton(data_)),
      start_(MakeDateInput("Start Date")),
      end_(MakeDateInput("End Date")),
      extension_(new QLineEdit),
      delete_(new QPushButton("Delete Report")),
      save_(new QPushButton("Save Report")),
      run_(new QPushButton("Run Report")),
      cancel_(new QPushButton("Cancel")),
      calendar_(new toolkit::CalendarPanel(this)) {
    auto* columns = new QHBoxLayout;
    columns->setSpacing(toolkit::kMargin);
    columns->addLayout(ReportColumn());
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

QLayout* CustomReportsWindow::ReportColumn() {
    auto* column = Column();
    column->addWidget(LabelOf(reports_, "Available Reports"));
    column->addWidget(reports_, 1);
    reports_->setAccessibleName("Available Reports");
    reports_->setFixedWidth(kListWidth);
    return column;
}

QLayout* CustomReportsWindow::FieldColumn() {
    auto* column = Column();
    column->addWidget(nameLabel_);
    column->addWidget(name_);
    column->addSpacing(toolkit::kSpacing);
    column->addWidget(LabelOf(fields_, "Select data you wish to show"));
    column->addWidget(fields_, 1);
    fields_->setAccessibleName("Select data you wish to show");
    for (QListWidget* list : {reports_, fields_}) list->setSpacing(toolkit::kGrid / 4);
    fields_->setMinimumHeight(static_cast<int>(kCustomFields + 1) * 3 * toolkit::kGrid);
    for (QWidget* widget : {static_cast<QWidget*>(name_), static_cast<QWidget*>(fields_)}) {
        widget->setFixedWidth(kFieldListWidth);
    }
    return column;
}

// With its look at hand, so that the rows are as high as they stay.
void CustomReportsWindow::FillFields() {
    fields_->ensurePolished();
    for (const CustomFieldNames& names : kCustomFieldNames) {
        auto* item = new QListWidgetItem(QString::fromUtf8(names.entry.data()), fields_);
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
    add(0, {LabelOf(account_, "Account Code:"), account_});
    add(1, {LabelOf(duration_, "Duration:"), duration_, greater_, less_});
    add(2, {start_.box, start_.field, start_.calendar});
    add(3, {end_.box, end_.field, end_.calendar});
    add(4, {LabelOf(extension_, "Extension:"), extension_});
    for (QLineEdit* field : {account_, duration_, start_.field, end_.field, extension_}) {
        field->setFixedWidth(kFieldWidth);
    }
    grid->setColumnStretch(4, 1);
    duration_->setToolTip("Enter a duration (eg 00:01:00)");
    return data_;
}

CustomReportsWindow::DateInput CustomReportsWindow::MakeDateInput(const QString& caption) {
    auto* calendar = new QPushButton("...");
    const DateInput input = {new QCheckBox(caption), new DateField(*calendar), calendar};
    input.field->setAccessibleName(caption);
    calendar->setToolTip("Show calendar");
    calendar->setMaximumWidth(calendar->sizeHint().width());
    calendar->setEnabled(false);
    connect(input.box, &QCheckBox::toggled, calendar, &QWidget::setEnabled);
    connect(calendar, &QPushButton::clicked, this, [this, input] { OpenCalendar(input); });
    return input;
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
    connect(calendar_, &toolkit::CalendarPanel::DayClicked, this, [this](const QDate& day) {
        asking_.field->setText(QString::fromStdString(ShortDate({day.year(), day.month(), day.day()})));
        asking_.box->setChecked(true);
    });
}

void CustomReportsWindow::OnLoad() {
    const Session& session = Program().session;
    for (QWidget* input :
         {static_cast<QWidget*>(data_), static_cast<QWidget*>(nameLabel_), static_cast<QWidget*>(name_),
          static_cast<QWidget*>(save_), static_cast<QWidget*>(run_)}) {
        input->setEnabled(false);
    }
    // The right of call cost mappings opens new reports; the one named for it asks nobody.
    if (Allows(session.CurrentAccess, AccessRight::CallCostMappings)) reports_->addItem(kNewReport);
    reports_->addItems(Texts(ListReports(CustomReportsFolder(session.ReportsLocation))));
    FillFields();
    FillOutput();
    ApplyRights();
    reports_->setFocus();
}

void CustomReportsWindow::ApplyRights() {
    const std::string& access = Program().session.CurrentAccess;
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
    account_->setText(QString::fromStdString(report.account));
    duration_->setText(QString::fromStdString(report.duration));
    (report.greater ? greater_ : report.less ? less_ : neither_)->setChecked(true);
    start_.field->setText(QString::fromStdString(report.startDate));
    end_.field->setText(QString::fromStdString(report.endDate));
    for (const DateInput& date : {start_, end_}) date.box->setChecked(!date.field->text().isEmpty());
    extension_->setText(QString::fromStdString(report.extension));
    Output().Choose(report.destination, report.application);
}

CustomReport CustomReportsWindow::Described() const {
    const DestinationChoice choice = Output().Choice();
    CustomReport report = {.account = TextOf(*account_),
                           .duration = TextOf(*duration_),
                           .greater = greater_->isChecked(),
                           .less = less_->isChecked(),
                           .startDate = TextOf(*start_.field),
                           .endDate = TextOf(*end_.field),
                           .extension = TextOf(*extension_),
                           .destination = choice.destination,
                           .application = choice.application};
    for (std::size_t i = 0; i < kCustomFields; ++i) {
        report.shown.at(i) = fields_->item(static_cast<int>(i))->checkState() == Qt::Checked;
    }
    return report;
}

void CustomReportsWindow::OpenCalendar(const DateInput& asking) {
    asking_ = asking;
    const DateTime now = Program().clock.Now();
    calendar_->Open(QDate(now.year, now.month, now.day), *asking.field);
}

void CustomReportsWindow::Save() {
    const std::string name = TextOf(*name_);
    WriteCustomReport(Program().session.ReportsLocation, name, Described());
    Program().prompts.Show({"Report", "Report Saved!", MessageIcon::Information});
    LogOnItsOwn(Program().session, Program().clock, "Report Created - " + name);
}

void CustomReportsWindow::RunReport() {
    extension_->setText(QString::fromStdString(FullExtension(TextOf(*extension_))));
    report_ = Described();
    DestinationChoice choice = Output().Choice();
    choice.editorFile = kEditorFile;
    ReportFlags none;
    Run(DescribeCustomRun(TextOf(*name_), report_), none, choice);
}

Message CustomReportsWindow::NoDataMessage() const {
    return {"Tallix Reports", "No data matches your query!", MessageIcon::Critical};
}

}  // namespace tallix
