#include "windows/costing/call_costings_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "session/access_log.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/form_names.h"
#include "toolkit/forms.h"
#include "toolkit/label.h"
#include "toolkit/style.h"
#include "toolkit/text.h"

namespace tallix {
namespace {

constexpr int kListHeight = 40 * toolkit::kGrid;
constexpr int kCostWidth = 12 * toolkit::kGrid;
constexpr int kDestinationTwips = 4 * toolkit::kPlainColumnWidth;

constexpr char kPurpose[] =
    "This screen controls the costings produced in reports. These should match the amount you pay in your "
    "contract to give an accurate figure. All costings should be entered in pence.";
constexpr char kImported[] =
    "Costings file has been imported!\n\nPlease be aware that the costings file was correct at the time "
    "it was created. Prices may have changed since this time. Please check with your carrier for the correct "
    "pricing scheme";

toolkit::Column<TariffRow> CostColumn() {
    toolkit::Column<TariffRow> column(
        "Cost", [](const TariffRow& row) { return row.cost.value_or(""); }, toolkit::kPlainColumnWidth,
        Qt::AlignHCenter);
    column.write = [](TariffRow& row, const QString& text) { row.cost = text.toStdString(); };
    return column;
}

const FileQuestion kCostingsFile = {"Select Costings File", "Tallix Costings File", "*.costing"};

}  // namespace

CallCostingsWindow::CallCostingsWindow(toolkit::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - Call Costings"),
      application_(application),
      tariff_(new toolkit::RecordModel<TariffRow>(
          {{"Destination", &TariffRow::number, kDestinationTwips}, CostColumn()}, this)),
      list_(new toolkit::ListView(*tariff_, this)),
      standardCost_(new QLineEdit(this)),
      number_(new QLineEdit(this)),
      cost_(new QLineEdit(this)),
      perMinute_(new QRadioButton("Per Minute Billing", this)),
      perSecond_(new QRadioButton("Per Second Billing", this)) {
    auto* purpose = new QLabel(kPurpose, this);
    purpose->setWordWrap(true);
    list_->setObjectName("Tariff");
    list_->setAccessibleName("Tariff");
    list_->setMinimumHeight(kListHeight);
    list_->EnableEditing();
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    rows->setSpacing(toolkit::kSpacing * 2);
    rows->addWidget(purpose);
    rows->addLayout(StandardRow());
    rows->addLayout(EntryRow());
    rows->addWidget(list_, 1);
    rows->addLayout(ButtonRow());
    standardCost_->setFocus();
    resize(sizeHint());  // all columns, also where that is more than the desktop would give at first
}

QLayout* CallCostingsWindow::StandardRow() {
    standardCost_->setFixedWidth(kCostWidth);
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing);
    row->addWidget(toolkit::LabelOf("Standard Cost:", standardCost_));
    row->addWidget(standardCost_);
    row->addSpacing(toolkit::kMargin);
    row->addWidget(perMinute_);
    row->addWidget(perSecond_);
    row->addStretch();
    return row;
}

QLayout* CallCostingsWindow::EntryRow() {
    cost_->setFixedWidth(kCostWidth);
    for (const QLineEdit* field : {number_, cost_}) {
        connect(field, &QLineEdit::returnPressed, this, &CallCostingsWindow::Add);
    }
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing);
    row->addWidget(toolkit::LabelOf("Number:", number_));
    row->addWidget(number_, 1);
    row->addWidget(toolkit::LabelOf("Cost:", cost_));
    row->addWidget(cost_);
    auto* add = Button("Add", &CallCostingsWindow::Add);
    auto* remove = Button("Delete", &CallCostingsWindow::Delete);
    row->addWidget(add);
    row->addWidget(remove);
    // The Tab key goes from top to bottom: the list is below the entry fields.
    QWidget* before = standardCost_;
    for (QWidget* next :
         std::initializer_list<QWidget*>{perMinute_, perSecond_, number_, cost_, add, remove, list_}) {
        setTabOrder(before, next);
        before = next;
    }
    return row;
}

QLayout* CallCostingsWindow::ButtonRow() {
    auto* exit = new QPushButton("Exit Costings Screen", this);
    exit->setToolTip("Close and save changes");
    connect(exit, &QPushButton::clicked, this, &CallCostingsWindow::Unload);
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing);
    row->addWidget(Button("Create New", &CallCostingsWindow::CreateNew));
    row->addWidget(Button("Populate From File", &CallCostingsWindow::PopulateFromFile));
    row->addStretch();
    row->addWidget(Button("Save Costings", &CallCostingsWindow::Save));
    row->addWidget(exit);
    new toolkit::DialogKeys(*this, nullptr, exit);
    return row;
}

QPushButton* CallCostingsWindow::Button(const QString& caption, void (CallCostingsWindow::*action)()) {
    auto* button = new QPushButton(caption, this);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

void CallCostingsWindow::OnLoad() {
    Costings costings = LoadCostings(application_.session, application_.settings);
    standardCost_->setText(toolkit::ToQString(costings.standardCost));
    tariff_->Set(std::move(costings.rows));
    (costings.unit == BillingUnit::Second ? perSecond_ : perMinute_)->setChecked(true);
}

// An entry without a number or a cost is ignored.
void CallCostingsWindow::Add() {
    if (number_->text().isEmpty() || cost_->text().isEmpty()) return;
    tariff_->Append({.number = number_->text().toStdString(), .cost = cost_->text().toStdString()});
    number_->clear();
    cost_->clear();
    number_->setFocus();
    list_->scrollToBottom();
}

void CallCostingsWindow::Delete() {
    if (const int row = list_->SelectedRow(); row >= 0) tariff_->Remove(row);
}

void CallCostingsWindow::CreateNew() {
    tariff_->Set({});
    standardCost_->setText(toolkit::ToQString(kNoStandardCost));
}

void CallCostingsWindow::PopulateFromFile() {
    const auto file = application_.prompts.AskOpenFile(kCostingsFile);
    if (!file) return;
    std::vector<TariffRow> rows = tariff_->All();
    AppendCostingFile(*file, rows);
    tariff_->Set(std::move(rows));
    Say(kImported);
}

void CallCostingsWindow::Save() {
    SaveCostings(application_.session, application_.settings,
                 {.standardCost = standardCost_->text().toStdString(),
                  .rows = tariff_->All(),
                  .unit = perSecond_->isChecked() ? BillingUnit::Second : BillingUnit::Minute});
    Say("Costings saved!");
    LogOnItsOwn(application_.session, application_.clock, "Saved Call Costings");
}

void CallCostingsWindow::Say(const std::string& text) const {
    application_.prompts.Show({"Tallix Reports", text, MessageIcon::Information});
}

void CallCostingsWindow::OnUnload() {
    OtherForms().Show(kOptionsForm);
}

}  // namespace tallix
