#include "windows/administration/tools_page.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <array>
#include <optional>

#include "administration/accounts.h"
#include "costing/cost_computation.h"
#include "session/access_rights.h"
#include "toolkit/form_names.h"
#include "toolkit/style.h"
#include "toolkit/wait_panel.h"

namespace tallix {
namespace {

constexpr char kComputeQuestion[] =
    "Tallix will now compute call cost data and save it back to the database for use in reports. Depending "
    "on the amount of call data you have, this process may take several minutes. Are you sure you wish to "
    "compute call data?";

struct Tool {
    const char* caption;
    const char* purpose;
    const char* form;  ///< the window that it opens; null for the computation of costs
    std::optional<AccessRight> right;
    bool forAdministratorOnly = false;
};

constexpr std::array<Tool, 6> kTools = {{
    {"Scheduled Reports", "Reports that run by themselves, to a folder or by mail.", kSchedulesForm,
     AccessRight::ScheduledReports},
    {"Cover/Backing", "The pages before and behind a printed report.", kCoverPagesForm, {}},
    {"Edit Call Costings", "The prices of calls by the numbers that are dialled.", kCallCostingsForm,
     AccessRight::CallCostings},
    {"Compute Costs", "Prices all calls for the reports.", nullptr, AccessRight::ComputeCosts},
    {"Edit Custom Mappings", "How the lines of the telephone system are read.", kMappingsForm,
     AccessRight::CustomMappings},
    {"Access Logging", "Who did what in the reports tool.", kAccessLoggingForm, {}, true},
}};

}  // namespace

ToolsPage::ToolsPage(Application& application, QWidget* parent)
    : OptionsPage(parent), application_(application), backup_(new QCheckBox("Enabled?")) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(3 * toolkit::kSpacing);
    rows->addWidget(ToolPanel());
    rows->addWidget(BackupPanel());
    rows->addStretch();
}

QWidget* ToolsPage::ToolPanel() {
    auto* panel = new QWidget;
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2 * toolkit::kSpacing);
    grid->setVerticalSpacing(toolkit::kSpacing);
    grid->setColumnStretch(1, 1);
    for (const Tool& tool : kTools) {
        auto* button = new QPushButton(tool.caption);
        auto* purpose = new QLabel(tool.purpose);
        toolkit::MakeQuiet(*purpose);
        grid->addWidget(button, static_cast<int>(buttons_.size()), 0);
        grid->addWidget(purpose, static_cast<int>(buttons_.size()), 1);
        connect(button, &QPushButton::clicked, this, [this, form = tool.form] { Start(form); });
        buttons_.push_back(button);
    }
    return panel;
}

QWidget* ToolsPage::BackupPanel() {
    auto* panel = new QGroupBox("Auto Backup");
    auto* enable = new QPushButton("Enable");
    auto* disable = new QPushButton("Disable");
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(2 * toolkit::kGrid, toolkit::kGrid, 2 * toolkit::kGrid, 2 * toolkit::kGrid);
    row->setSpacing(toolkit::kSpacing);
    row->addWidget(backup_);
    row->addSpacing(toolkit::kSpacing);
    row->addWidget(enable);
    row->addWidget(disable);
    row->addStretch();
    backup_->setChecked(true);
    backup_->setEnabled(false);
    connect(enable, &QPushButton::clicked, backup_, [this] { backup_->setChecked(true); });
    connect(disable, &QPushButton::clicked, backup_, [this] { backup_->setChecked(false); });
    return panel;
}

void ToolsPage::Start(const char* form) {
    if (form != nullptr) {
        emit WindowWanted(form);
    } else {
        ComputeCosts();
    }
}

void ToolsPage::ApplyRights(const AccessRights& access) {
    const bool isAdministrator = application_.session.CurrentUser == kAdministrator;
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        const Tool& tool = kTools.at(i);
        const bool granted = !tool.right || Allows(access, *tool.right);
        buttons_[i]->setEnabled(granted && (isAdministrator || !tool.forAdministratorOnly));
    }
}

void ToolsPage::ComputeCosts() {
    const Answer answer = application_.prompts.Show(
        {"Call Costs", kComputeQuestion, MessageIcon::Information, MessageButtons::YesNo});
    if (answer != Answer::Yes) return;
    toolkit::RunWithPanel(*this, application_.events, "Calculating Call Costings", "Please Wait...",
                          [this] { tallix::ComputeCosts(application_.session, application_.settings); });
}

}  // namespace tallix
