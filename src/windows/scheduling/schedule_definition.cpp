#include "windows/scheduling/schedule_definition.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "toolkit/label.h"
#include "toolkit/style.h"
#include "toolkit/text.h"

namespace tallix {
namespace {

constexpr int kFrequencyWidth = 20 * toolkit::kGrid;
constexpr int kIntervalWidth = 10 * toolkit::kGrid;

/// The interval beside a frequency. A person can choose one, but nothing reads it.
struct Interval {
    const char* caption;
    int last;
};

constexpr std::array<Interval, kFrequencies.size()> kIntervals = {
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

ScheduleDefinition::ScheduleDefinition(Application& application)
    : application_(application),
      name_(new QLineEdit),
      report_(new QComboBox),
      frequencies_(new QButtonGroup(this)),
      toFile_(new QRadioButton("Exported File")),
      byMail_(new QRadioButton("Email")),
      location_(new QLineEdit),
      parameters_(new ParameterFields),
      save_(new QPushButton("Save Schedule")) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(toolkit::kMargin);
    rows->addLayout(NameRows());
    rows->addLayout(FrequencyRows());
    rows->addWidget(OutputFrame());
    rows->addWidget(parameters_);
    rows->addStretch();
    rows->addWidget(save_, 0, Qt::AlignRight);
    connect(report_, &QComboBox::currentIndexChanged, this, &ScheduleDefinition::OfferParameters);
}

QLayout* ScheduleDefinition::NameRows() {
    auto* grid = Grid();
    grid->addWidget(toolkit::LabelOf("Task Name:", name_), 0, 0);
    grid->addWidget(name_, 0, 1);
    grid->addWidget(toolkit::LabelOf("Select Preset Report:", report_), 1, 0);
    grid->addWidget(report_, 1, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QLayout* ScheduleDefinition::FrequencyRows() {
    auto* grid = Grid();
    for (int row = 0; row < static_cast<int>(kIntervals.size()); ++row) {
        auto* option = new QRadioButton(toolkit::ToQString(kFrequencies.at(row)));
        auto* interval = IntervalList(kIntervals.at(row).last);
        frequencies_->addButton(option, row);
        grid->addWidget(option, row, 0);
        grid->addWidget(toolkit::LabelOf(kIntervals.at(row).caption, interval), row, 1);
        grid->addWidget(interval, row, 2);
    }
    grid->setColumnMinimumWidth(0, kFrequencyWidth);
    grid->setColumnStretch(3, 1);
    return grid;
}

QWidget* ScheduleDefinition::OutputFrame() {
    auto* frame = new QGroupBox("Output");
    auto* options = new QHBoxLayout;
    options->setSpacing(toolkit::kMargin);
    options->addWidget(toFile_);
    options->addWidget(byMail_);
    options->addStretch();
    auto* rows = new QVBoxLayout(frame);
    constexpr int kInset = toolkit::kSpacing * 2;
    rows->setContentsMargins(kInset, kInset, kInset, kInset);
    rows->setSpacing(toolkit::kSpacing);
    rows->addLayout(options);
    rows->addLayout(LocationRow());
    toFile_->setChecked(true);
    return frame;
}

QLayout* ScheduleDefinition::LocationRow() {
    auto* folder = new QPushButton("...");
    folder->setToolTip("Select Output Folder");
    connect(folder, &QPushButton::clicked, this, &ScheduleDefinition::ChooseFolder);
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing * 2);
    row->addWidget(toolkit::LabelOf("Location:", location_));
    row->addWidget(location_, 1);
    row->addWidget(folder);
    return row;
}

void ScheduleDefinition::ListReports() {
    report_->addItems(toolkit::ToQStringList(ListPresetReports(application_)));
}

void ScheduleDefinition::OfferParameters() {
    parameters_->Offer(UsableParameters(application_, report_->currentText().toStdString()));
}

void ScheduleDefinition::ChooseFolder() {
    const auto folder = application_.prompts.AskFolder("Select Output Folder");
    if (folder) location_->setText(toolkit::ToQString(folder->string()) + "\\");
}

void ScheduleDefinition::BeginNew() {
    name_->clear();
    location_->clear();
    toFile_->setChecked(true);
    Begin(SaveMode::New, *name_);
}

void ScheduleDefinition::BeginEdit(const std::string& name, const ScheduledReport& stored) {
    if (stored.output == "File") toFile_->setChecked(true);
    if (stored.output == "Email") byMail_->setChecked(true);
    location_->setText(toolkit::ToQString(stored.outputLocation));
    name_->setText(toolkit::ToQString(name));
    Begin(SaveMode::Replace, *report_);
}

void ScheduleDefinition::Begin(SaveMode mode, QWidget& first) {
    mode_ = mode;
    name_->setEnabled(mode == SaveMode::New);
    setEnabled(true);
    first.setFocus();
}

void ScheduleDefinition::End() {
    mode_ = SaveMode::New;
    name_->clear();
    location_->clear();
    report_->setCurrentIndex(-1);
    OfferParameters();
    frequencies_->setExclusive(false);
    for (QAbstractButton* option : frequencies_->buttons()) option->setChecked(false);
    frequencies_->setExclusive(true);
    setEnabled(false);
}

Schedule ScheduleDefinition::Defined() const {
    const int frequency = frequencies_->checkedId();
    return {.name = name_->text().toStdString(),
            .report = report_->currentText().toStdString(),
            .frequency = frequency < 0 ? std::string_view() : kFrequencies.at(frequency),
            .delivery = toFile_->isChecked() ? Delivery::ToFolder : Delivery::ByMail,
            .location = location_->text().toStdString(),
            .parameters = parameters_->Texts()};
}

}  // namespace tallix
