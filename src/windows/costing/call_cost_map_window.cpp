#include "windows/costing/call_cost_map_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "toolkit/dialog_keys.h"
#include "toolkit/style.h"
#include "toolkit/wait_panel.h"

namespace tallix {
namespace {

constexpr int kListHeight = 40 * toolkit::kGrid;
constexpr int kAreaTwips = 3 * toolkit::kPlainColumnWidth;

constexpr char kPurpose[] =
    "This screen controls how costs are mapped to area codes. Under Charge, enter L for Local, N for "
    "National, M for Mobile and P for Premium.";

const Message kSaved = {"Tallix Reports", "Cost map saved!", MessageIcon::Information};
const Message kRefused = {"Tallix Reports",
                          "There is an error in the cost map you are trying to save. Ensure you have entered "
                          "single letters in the Charge section and numbers in the Code section",
                          MessageIcon::Critical};

}  // namespace

CallCostMapWindow::CallCostMapWindow(toolkit::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - Call Cost Mappings"),
      application_(application),
      map_(new toolkit::RecordModel<CostMapRow>(
          {{"Area", &CostMapRow::area, kAreaTwips},
           {"Charge", &CostMapRow::charge, toolkit::kPlainColumnWidth, Qt::AlignHCenter}},
          this)),
      list_(new toolkit::ListView(*map_, this)) {
    auto* purpose = new QLabel(kPurpose, this);
    purpose->setWordWrap(true);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    rows->setSpacing(toolkit::kSpacing * 2);
    rows->addWidget(purpose);
    rows->addWidget(MapFrame(), 1);
    rows->addLayout(ButtonRow());
    resize(sizeHint());  // all columns, also where that is more than the desktop would give at first
}

QWidget* CallCostMapWindow::MapFrame() {
    auto* frame = new QGroupBox("Call Cost Map", this);
    list_->setObjectName("CostMap");
    list_->setAccessibleName(frame->title());
    list_->setMinimumHeight(kListHeight);
    list_->EnableEditing();
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(toolkit::kSpacing, toolkit::kSpacing, toolkit::kSpacing, toolkit::kSpacing);
    inside->addWidget(list_);
    return frame;
}

QLayout* CallCostMapWindow::ButtonRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing);
    connect(AddButton(*row, "Create New"), &QPushButton::clicked, this, [this] { map_->Set({}); });
    connect(AddButton(*row, "Populate From DB"), &QPushButton::clicked, this,
            &CallCostMapWindow::PopulateFromDatabase);
    row->addStretch();
    connect(AddButton(*row, "Save Costings"), &QPushButton::clicked, this, &CallCostMapWindow::Save);
    QPushButton* exit = AddButton(*row, "Exit Costings Screen");
    exit->setToolTip("Close and save changes");
    connect(exit, &QPushButton::clicked, this, &CallCostMapWindow::Unload);
    new toolkit::DialogKeys(*this, nullptr, exit);
    return row;
}

QPushButton* CallCostMapWindow::AddButton(QHBoxLayout& row, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    row.addWidget(button);
    return button;
}

void CallCostMapWindow::OnLoad() {
    map_->Set(LoadCostMap(application_.session));
}

void CallCostMapWindow::PopulateFromDatabase() {
    std::vector<CostMapRow> rows = map_->All();
    AppendAreaCodes(application_.session, rows);
    map_->Set(std::move(rows));
}

void CallCostMapWindow::Save() {
    bool saved = false;
    {
        toolkit::WaitPanel waiting(*this, "Please Wait...", "");
        waiting.Show();
        application_.events.ServeDuring([&] { saved = SaveCostMap(application_.session, map_->All()); });
        if (saved) application_.prompts.Show(kSaved);
    }
    if (!saved) application_.prompts.Show(kRefused);
}

}  // namespace tallix
