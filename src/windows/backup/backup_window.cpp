#include "windows/backup/backup_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStackedLayout>

#include "backup/restore.h"
#include "session/access_log.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/main_menu_form.h"
#include "toolkit/style.h"
#include "toolkit/text.h"
#include "toolkit/wait_panel.h"

namespace tallix {
namespace {

constexpr int kSpin = 100;  ///< lines after which the bars of a restore begin again

constexpr BackupChoice kBackupChoices[] = {
    {BackupGroup::ProcessedCalls, "Backup Processed Call Data", "Select to backup call data",
     AccessRight::BackupCallData},
    {BackupGroup::RawCalls, "Backup RAW Call Data", "Select to backup raw data", AccessRight::BackupRawData},
    {BackupGroup::SystemOptions, "Backup System Options", "Select to backup system options",
     AccessRight::BackupSystemOptions},
};

constexpr BackupChoice kRestoreChoices[] = {
    {BackupGroup::SystemOptions, "Restore System Options", "Select to restore system options",
     AccessRight::RestoreSystemOptions},
    {BackupGroup::RawCalls, "Restore RAW Call Data", "Select to restore raw data",
     AccessRight::RestoreRawData},
    {BackupGroup::ProcessedCalls, "Restore Processed Call Data", "Select to restore call data",
     AccessRight::RestoreCallData},
};

constexpr char kPurpose[] =
    "This section allows you to perform a backup or resotration of the Tallix database.";
constexpr char kImportant[] =
    "IMPORTANT! - Because the backup tool performs various procedures on the database that may make it "
    "unavailable to other programs, you should ensure all programs that access the database are stopped. The "
    "backup utility will automatically stop any Tallix services when backup/restore starts.";
constexpr char kWaitTitle[] = "Please Wait";
constexpr char kWaitText[] = "Your backup is currently being prepared and saved to disk";
constexpr char kOverall[] = "Overall Progress";
constexpr char kModule[] = "Module Progress";
constexpr char kFileLabel[] = "Tallix Backup File";
constexpr char kFilePattern[] = "*.sbk";

const Message kNoLocation = {"Backup",
                             "You have not entered a name and location for the backup. The backup process "
                             "cannot continue!",
                             MessageIcon::Exclamation};
const Message kBackedUp = {
    "Backup Complete",
    "Tallix backup complete!\nPlease ensure that you place the backup in a safe place to "
    "allow easy and fast restoration of your Tallix data in the future",
    MessageIcon::Information};
const Message kRestoreQuestion = {
    "Restore",
    "WARNING!!!\nRestoring data into the Tallix database REMOVES old data first. Please ensure you have a "
    "recent backup of your data as well as checking that you have selected the appropriate options for "
    "the resotration.\n\nAre you sure you wish to restore the database?",
    MessageIcon::Exclamation, MessageButtons::YesNo};
const Message kRestored = {
    "Restore Complete",
    "Restore Complete!\nPlease check the data has been imported correctly by running a report",
    MessageIcon::Information};

/// The two bars of the panel.
class PanelProgress : public BackupProgress {
public:
    PanelProgress(toolkit::WaitPanel& panel, EventQueue& events)
        : overall_(panel.AddLine(events, kOverall)), module_(panel.AddLine(events, kModule)) {
        overall_.ShowText(kOverall);
        module_.ShowText(kModule);
    }
    void ShowOverall(std::size_t done, std::size_t groups) override {
        if (groups > 0) overall_.Record(static_cast<std::int64_t>(done), static_cast<std::int64_t>(groups));
    }
    void ShowModule(std::int64_t row, std::int64_t rows) override { module_.Record(row, rows); }
    void ClearModule() override {
        module_.Reset();
        module_.ShowText(kModule);
    }
    void Spin() {
        spin_ = (spin_ + 1) % kSpin;
        overall_.Record(spin_, kSpin);
        module_.Record(spin_, kSpin);
    }

private:
    toolkit::ProgressLine& overall_;
    toolkit::ProgressLine& module_;
    std::int64_t spin_ = 0;
};

std::filesystem::path PathIn(const QLineEdit& field) {
    return field.text().toStdString();
}

}  // namespace

BackupWindow::BackupWindow(toolkit::Forms& forms, Application& application, BackupChannel& channel)
    : Form(forms, "Tallix Reports Tool - Backup/Restore"),
      application_(application),
      channel_(channel),
      beginBackup_(new QPushButton("BEGIN BACKUP")),
      browseBackup_(new QPushButton("Browse")),
      backup_(new BackupFrame("Backup")),
      backupName_(backup_->AddField("Backup Name:", "Enter a name for the backup")),
      backupLocation_(
          backup_->AddField("Backup Location:", "Enter a location for the backup", browseBackup_)),
      beginRestore_(new QPushButton("BEGIN RESTORE")),
      browseRestore_(new QPushButton("Browse")),
      restore_(new BackupFrame("Restore")),
      restoreLocation_(
          restore_->AddField("Backup Location:", "Enter a location of the backup", browseRestore_)),
      close_(new QPushButton("Close")) {
    backup_->AddChoices(kBackupChoices, *beginBackup_);
    restore_->AddChoices(kRestoreChoices, *beginRestore_);
    auto* important = new QLabel(kImportant);
    important->setWordWrap(true);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    rows->setSpacing(2 * toolkit::kSpacing);
    rows->addWidget(new QLabel(kPurpose));
    rows->addLayout(Frames(), 1);
    rows->addWidget(important);
    rows->addWidget(close_, 0, Qt::AlignRight);
    ConnectButtons();
    new toolkit::DialogKeys(*this, nullptr, close_);
}

// The refusal shows in place of a frame that is not granted.
QWidget* BackupWindow::Half(BackupFrame& frame, const QString& refusal, AccessRight right) {
    const bool granted = Allows(application_.session.CurrentAccess, right);
    auto* half = new QWidget;
    auto* words = new QLabel(refusal);
    words->setAlignment(Qt::AlignCenter);
    toolkit::MakeQuiet(*words);
    auto* layers = new QStackedLayout(half);
    layers->addWidget(&frame);
    layers->addWidget(words);
    layers->setCurrentIndex(granted ? 0 : 1);
    return half;
}

QLayout* BackupWindow::Frames() {
    auto* halves = new QHBoxLayout;
    halves->setSpacing(toolkit::kMargin);
    halves->addWidget(Half(*backup_, "You do not have access to backup", AccessRight::Backup));
    halves->addWidget(Half(*restore_, "You do not have access to restore", AccessRight::Restore));
    return halves;
}

void BackupWindow::ConnectButtons() {
    beginBackup_->setToolTip("Click here to begin the backup");
    beginRestore_->setToolTip("Click here to begin the restore");
    close_->setToolTip("Click here to close");
    connect(browseBackup_, &QPushButton::clicked, this, &BackupWindow::BrowseBackup);
    connect(browseRestore_, &QPushButton::clicked, this, &BackupWindow::BrowseRestore);
    connect(beginBackup_, &QPushButton::clicked, this, &BackupWindow::Backup);
    connect(beginRestore_, &QPushButton::clicked, this, &BackupWindow::Restore);
    connect(close_, &QPushButton::clicked, this, &QWidget::close);
}

void BackupWindow::OnLoad() {
    for (BackupFrame* frame : {backup_, restore_}) frame->ApplyRights(application_.session.CurrentAccess);
}

void BackupWindow::OnUnload() {
    toolkit::ShowMainMenu(OtherForms(), application_.session);
}

void BackupWindow::BrowseBackup() {
    const auto chosen =
        application_.prompts.AskSaveFile({"Select A Backup Location", kFileLabel, kFilePattern});
    if (!chosen) return;
    backupLocation_->setText(toolkit::ToQString(chosen->string()));
    backupName_->setText(toolkit::ToQString(chosen->filename().string()));
}

void BackupWindow::BrowseRestore() {
    const auto chosen = application_.prompts.AskOpenFile({"Select A Backup", kFileLabel, kFilePattern});
    if (chosen) restoreLocation_->setText(toolkit::ToQString(chosen->string()));
}

// The location alone decides where the file goes. The name is only shown.
void BackupWindow::Backup() {
    const std::filesystem::path location = PathIn(*backupLocation_);
    if (location.empty()) {
        application_.prompts.Show(kNoLocation);
        return;
    }
    {
        toolkit::WaitPanel panel(*this, kWaitTitle, kWaitText);
        PanelProgress progress(panel, application_.events);
        panel.Show();
        WriteBackup(application_, channel_, location, backup_->Chosen(), progress);
    }
    application_.prompts.Show(kBackedUp);
    Unload();
    LogBackup(application_, location);
}

void BackupWindow::Restore() {
    if (application_.prompts.Show(kRestoreQuestion) != Answer::Yes) return;
    const std::string location = PathIn(*restoreLocation_).string();
    if (location.empty()) {
        application_.prompts.Show(kNoLocation);
        return;
    }
    Replay();
    application_.prompts.Show(kRestored);
    Unload();
    LogOnItsOwn(application_.session, application_.clock, "Data Restored - " + location);
}

// The file of the other frame is opened for writing too, and stays empty.
void BackupWindow::Replay() {
    toolkit::WaitPanel panel(*this, kWaitTitle, kWaitText);
    PanelProgress progress(panel, application_.events);
    panel.Show();
    channel_.Hold(PathIn(*backupLocation_));
    ReplayBackup(application_, PathIn(*restoreLocation_), restore_->Chosen(), [&] { progress.Spin(); });
}

}  // namespace tallix
