#include "windows/backup/archive_window.h"

#include <QCloseEvent>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "toolkit/button_row.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/label.h"
#include "toolkit/main_menu_form.h"
#include "toolkit/style.h"
#include "toolkit/text.h"

namespace tallix {
namespace {

constexpr int kFieldWidth = 16 * toolkit::kGrid;
constexpr int kLocationWidth = 48 * toolkit::kGrid;
constexpr int kShownMonths = 12;

constexpr char kPurpose[] = "This section allows you to archive data from the call data listings.";
constexpr char kYearHint[] = "Year must be entered in full format: i.e. 2006 etc";
constexpr char kImportant[] =
    "IMPORTANT! - Because the archive tool performs various procedures on the database that may make it "
    "unavailable to other programs, you should ensure all programs that access the database are stopped. "
    "The archive utility will automatically stop any Tallix services when archiving starts.";

// No month is chosen before the person does it.
QComboBox* MonthList() {
    auto* list = new QComboBox;
    for (const std::string& month : ArchiveMonths()) list->addItem(toolkit::ToQString(month));
    list->setCurrentIndex(-1);
    list->setMaxVisibleItems(kShownMonths);
    list->setFixedWidth(kFieldWidth);
    return list;
}

QButtonGroup* Group(QWidget* window, std::initializer_list<QRadioButton*> options) {
    auto* group = new QButtonGroup(window);
    for (QRadioButton* option : options) group->addButton(option);
    return group;
}

// Inputs side by side at their own width.
QHBoxLayout* Row(std::initializer_list<QWidget*> widgets) {
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing);
    for (QWidget* widget : widgets) row->addWidget(widget);
    row->addStretch();
    return row;
}

}  // namespace

ArchiveWindow::ArchiveWindow(toolkit::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - Archive Data"),
      application_(application),
      entireYear_(new QRadioButton("Entire Year")),
      selectedMonths_(new QRadioButton("Selected Months")),
      periods_(Group(this, {entireYear_, selectedMonths_})),
      year_(new QLineEdit),
      firstMonth_(MonthList()),
      lastMonth_(MonthList()),
      toFile_(new QRadioButton("To File")),
      toDatabase_(new QRadioButton("To Database")),
      destinations_(Group(this, {toFile_, toDatabase_})),
      name_(new QLineEdit),
      location_(new QLineEdit),
      browse_(new QPushButton("Browse")),
      begin_(new QPushButton("BEGIN ARCHIVE")),
      close_(new QPushButton("Close")),
      records_(new toolkit::ProgressLine(application.events, "Processing Record %1 of %2")),
      progress_(ProgressFrame()),
      foot_(new QStackedWidget) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    rows->setSpacing(toolkit::kSpacing * 2);
    rows->addWidget(new QLabel(kPurpose));
    rows->addWidget(ArchiveFrame());
    rows->addWidget(Foot());
    rows->addStretch();
    rows->addLayout(ButtonRow());
    SetTips();
    ConnectInputs();
    selectedMonths_->setChecked(true);
    toFile_->setChecked(true);
    new toolkit::DialogKeys(*this, begin_, close_);
}

QWidget* ArchiveWindow::ArchiveFrame() {
    auto* frame = new QGroupBox("Archive");
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    grid->setHorizontalSpacing(toolkit::kSpacing * 2);
    grid->setVerticalSpacing(toolkit::kSpacing);
    grid->setColumnStretch(2, 1);
    AddPeriodRows(*grid);
    grid->setRowMinimumHeight(grid->rowCount(), toolkit::kMargin);
    AddDestinationRows(*grid);
    return frame;
}

void ArchiveWindow::AddPeriodRows(QGridLayout& grid) {
    year_->setFixedWidth(kFieldWidth);
    year_->setAccessibleName(entireYear_->text());
    year_->setAccessibleDescription(kYearHint);
    QLabel* hint = toolkit::LabelOf(kYearHint, year_);
    toolkit::MakeQuiet(*hint);
    QLabel* between = toolkit::LabelOf("Between:", firstMonth_);
    QLabel* andLabel = toolkit::LabelOf("And", lastMonth_);
    grid.addWidget(entireYear_, 0, 0);
    grid.addLayout(Row({year_, hint}), 0, 2);
    grid.addWidget(selectedMonths_, 1, 0);
    grid.addWidget(between, 1, 1);
    grid.addLayout(Row({firstMonth_, andLabel, lastMonth_}), 1, 2);
}

void ArchiveWindow::AddDestinationRows(QGridLayout& grid) {
    location_->setMinimumWidth(kLocationWidth);
    auto* place = new QHBoxLayout;
    place->setSpacing(toolkit::kSpacing);
    place->addWidget(location_, 1);
    place->addWidget(browse_);
    const int row = grid.rowCount();
    grid.addWidget(toFile_, row, 0);
    grid.addWidget(toolkit::LabelOf("Archive Name:", name_), row, 1);
    grid.addWidget(name_, row, 2);
    grid.addWidget(toolkit::LabelOf("Archive Location:", location_), row + 1, 1);
    grid.addLayout(place, row + 1, 2);
    grid.addWidget(toDatabase_, row + 2, 0);
}

void ArchiveWindow::SetTips() {
    year_->setToolTip("Enter year to archive");
    name_->setToolTip("Enter a name for the archive file");
    location_->setToolTip("Location of archive file");
    begin_->setToolTip("Click here to begin archiving");
    close_->setToolTip("Click here to close");
}

// The progress replaces the warning and leaves the inputs enabled: an incomplete request can
// be completed while the progress shows.
QWidget* ArchiveWindow::Foot() {
    auto* important = new QLabel(kImportant);
    important->setWordWrap(true);
    important->setAlignment(Qt::AlignTop);
    foot_->addWidget(important);
    foot_->addWidget(progress_);
    return foot_;
}

QWidget* ArchiveWindow::ProgressFrame() {
    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    auto* title = new QLabel("Please Wait");
    toolkit::MakeSubheading(*title);
    records_->ShowText("Processing Record 0 of 1");
    auto* rows = new QVBoxLayout(frame);
    rows->setContentsMargins(toolkit::kMargin, toolkit::kSpacing * 2, toolkit::kMargin,
                             toolkit::kSpacing * 2);
    rows->setSpacing(toolkit::kSpacing);
    rows->addWidget(title);
    rows->addWidget(new QLabel("Your archive is currently being prepared and saved to disk"));
    rows->addWidget(records_);
    return frame;
}

QLayout* ArchiveWindow::ButtonRow() {
    return toolkit::ButtonRow({}, {begin_, close_});
}

void ArchiveWindow::ConnectInputs() {
    for (const QRadioButton* option : {entireYear_, selectedMonths_, toFile_, toDatabase_}) {
        connect(option, &QRadioButton::toggled, this, &ArchiveWindow::EnableInputs);
    }
    connect(browse_, &QPushButton::clicked, this, &ArchiveWindow::Browse);
    connect(begin_, &QPushButton::clicked, this, [this] { RunArchive(application_, *this); });
    connect(close_, &QPushButton::clicked, this, &QWidget::close);
}

void ArchiveWindow::EnableInputs() {
    year_->setEnabled(entireYear_->isChecked());
    for (QWidget* list : {firstMonth_, lastMonth_}) list->setEnabled(selectedMonths_->isChecked());
    for (QWidget* field : {name_, location_}) field->setEnabled(toFile_->isChecked());
    browse_->setEnabled(toFile_->isChecked());
    EnableLabels();
}

void ArchiveWindow::EnableLabels() {
    for (QLabel* label : findChildren<QLabel*>()) {
        if (label->buddy()) label->setEnabled(label->buddy()->isEnabled());
    }
}

void ArchiveWindow::Browse() {
    const auto chosen =
        application_.prompts.AskSaveFile({"Select An Archive Location", "Tallix Archive File", "*.SAF"});
    if (!chosen) return;
    const ArchiveTarget target = TargetOfPath(*chosen);
    location_->setText(toolkit::ToQString(target.location));
    name_->setText(toolkit::ToQString(target.name));
}

void ArchiveWindow::ShowProgress() {
    foot_->setCurrentWidget(progress_);
}

void ArchiveWindow::HideProgress() {
    foot_->setCurrentIndex(0);
}

ArchiveRequest ArchiveWindow::Request() const {
    ArchiveRequest request = {
        .year = year_->text().toStdString(),
        .firstMonth = firstMonth_->currentText().toStdString(),
        .lastMonth = lastMonth_->currentText().toStdString(),
        .target = {.name = name_->text().toStdString(), .location = location_->text().toStdString()}};
    if (entireYear_->isChecked()) request.period = ArchivePeriod::EntireYear;
    if (selectedMonths_->isChecked()) request.period = ArchivePeriod::SelectedMonths;
    if (toDatabase_->isChecked()) request.destination = ArchiveDestination::ToDatabase;
    return request;
}

void ArchiveWindow::LockInputs() {
    working_ = true;
    for (QPushButton* button : {begin_, close_, browse_}) button->setEnabled(false);
    for (QLineEdit* field : {name_, location_, year_}) field->setEnabled(false);
    for (QComboBox* list : {firstMonth_, lastMonth_}) list->setEnabled(false);
    for (QRadioButton* option : {entireYear_, selectedMonths_, toFile_, toDatabase_}) {
        option->setEnabled(false);
    }
    EnableLabels();
}

// The period is cleared, so that pressing the button twice does not archive twice.
void ArchiveWindow::ClearInputs() {
    periods_->setExclusive(false);
    for (QRadioButton* option : {entireYear_, selectedMonths_}) option->setChecked(false);
    periods_->setExclusive(true);
    for (QRadioButton* option : {entireYear_, selectedMonths_, toFile_, toDatabase_}) {
        option->setEnabled(true);
    }
    for (QPushButton* button : {begin_, close_}) button->setEnabled(true);
    for (QLineEdit* field : {name_, location_, year_}) field->clear();
    EnableInputs();
    browse_->setEnabled(true);
    working_ = false;
}

void ArchiveWindow::OnUnload() {
    toolkit::ShowMainMenu(OtherForms(), application_.session);
}

void ArchiveWindow::closeEvent(QCloseEvent* event) {
    if (working_) return event->ignore();
    Form::closeEvent(event);
}

}  // namespace tallix
