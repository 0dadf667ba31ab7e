#include "jobs.h"

#include <fmt/format.h>

#include <QApplication>
#include <array>
#include <fstream>

#include "administration/address_book.h"
#include "administration/extensions.h"
#include "backup/archive.h"
#include "backup/automated_backup.h"
#include "backup/backup.h"
#include "backup/restore.h"
#include "costing/cost_computation.h"
#include "database/database_scope.h"
#include "floors.h"
#include "reporting/custom_reports.h"
#include "reporting/report_run.h"
#include "toolkit/progress_panel.h"
#include "toolkit/qt_events.h"

namespace tallix::bench {

namespace {

constexpr std::array kArchiveColumns = {"Date",      "Time",    "Duration", "Extension", "NumRings",
                                        "OrigNum",   "DestNum", "Internal", "Error",     "Supervision",
                                        "Speedcall", "Forward", "Trunk",    "Account",   "Site"};

constexpr const char* kBackupName = "calls.sbk";

constexpr const char* kAllCalls = "SELECT * FROM tblphonedata";

void WriteReport(World& world, const std::string& name, const std::string& columns,
                 const std::string& options) {
    const std::filesystem::path file = PresetReportFile(world.application.folder, name);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << "[Data]\n" << columns << "[Options]\n" << options;
}

// Runs a report over all calls and returns the size of its page.
template <typename Run>
std::int64_t RunReport(World& world, const std::string& columns, const std::string& options,
                       RunProgress& progress) {
    WriteReport(world, "Bench", columns, options);
    ReportFlags flags;
    const Run run = {.flags = flags, .reportFile = PresetReportFile(world.application.folder, "Bench")};
    ReportRun(world.application, progress).Make({.reportName = "Bench", .kind = run});
    return static_cast<std::int64_t>(std::filesystem::file_size(PageFile(world.application)));
}

const std::string kPlainColumns =
    "Date=True\nTime=True\nExtension=True\nDuration=True\nNumRings=True\nOrigNum=True\nDestNum=True\nTrunk="
    "True\n"
    "Account=True\nSite=True\n";
const std::string kAllColumns = kPlainColumns + "Name=True\nForward=True\nArea=True\n";
const std::string kWithCost = "Cost=True\n";

/// A window that shows the progress of its work.
struct ShownWork {
    ShownWork() {
        panel.show();
        window.show();
    }

    int none = 0;
    QApplication toolkit{none, nullptr};
    QWidget window;
    toolkit::QtEvents events;
    toolkit::ProgressPanel panel{window, "Please Wait", "Your selected report is being generated."};
    toolkit::ProgressLine& records = panel.AddLine(events, "Processing Record %1 Of %2");
};

std::int64_t PlainReport(World& world) {
    NoProgress nobody;
    return RunReport<UnattendedRun>(world, kPlainColumns, "", nobody);
}

std::int64_t CustomPage(World& world) {
    CustomReport report;
    report.shown.fill(true);
    NoProgress nobody;
    ReportRun(world.application, nobody).Make({.reportName = "Bench", .kind = CustomRun{report}});
    return static_cast<std::int64_t>(std::filesystem::file_size(PageFile(world.application)));
}

std::int64_t FullReport(World& world, const std::string& costCompute) {
    world.application.settings.Write("Providers", "2");
    world.application.settings.Write("CostCompute", costCompute);
    NoProgress nobody;
    return RunReport<UnattendedRun>(world, kAllColumns, kWithCost, nobody);
}

std::int64_t PresetPage(World& world) {
    for (const char* colour : {"rptTC", "rptTHC", "rptTDC", "rptTBC"}) {
        world.application.settings.Write(colour, "002001118");
    }
    world.application.settings.Write("V1Reports", "1");
    world.application.settings.Write("Providers", "2");
    world.application.settings.Write("CostCompute", "1");
    ShownWork shown;
    return RunReport<PresetRun>(world, kAllColumns, kWithCost, shown.records);
}

std::int64_t Costs(World& world) {
    ComputeCosts(world.application.session, world.application.settings);
    return 0;
}

std::int64_t Dump(World& world) {
    WriteAutomatedBackup(world.application);
    return static_cast<std::int64_t>(
        std::filesystem::file_size(world.application.folder / kAutomatedBackupName));
}

std::int64_t FindExtensions(World& world) {
    NoProgress nobody;
    FindNewExtensions(world.application, {}, nobody);
    return 0;
}

// The bytes of the text do not matter: fetching is all that is compared.
void FetchCalls(World& world, std::int64_t) {
    OpenBareClient(world.Parts())->Fetch(kAllCalls);
}

constexpr int kImportedNumbers = 100'000;
constexpr const char* kImportName = "numbers.csv";

void WriteNumbers(World& world) {
    std::ofstream file(world.application.folder / kImportName);
    for (int i = 0; i < kImportedNumbers; ++i) file << fmt::format("0{0},Company {0}\r\n", 1'600'000'000 + i);
    OpenBareClient(world.Parts())->Execute("DELETE FROM tbladdressbook");
}

std::int64_t ImportNumbers(World& world) {
    ImportAddressBook(world.application.session, world.application.folder / kImportName);
    return 0;
}

void SendNumbers(World& world, std::int64_t) {
    const std::unique_ptr<BareClient> client = OpenBareClient(world.Parts());
    for (int i = 0; i < kImportedNumbers; ++i) {
        client->Execute(fmt::format("INSERT INTO tbladdressbook(Name, Number) VALUES ('Company {0}', '0{0}')",
                                    1'600'000'000 + i));
    }
}

/// The bar of a backup at the screen.
class ShownBackup : public BackupProgress {
public:
    explicit ShownBackup(toolkit::ProgressLine& rows) : rows_(rows) {}
    void ShowOverall(std::size_t, std::size_t) override {}
    void ShowModule(std::int64_t row, std::int64_t rows) override { rows_.Record(row, rows); }
    void ClearModule() override {}

private:
    toolkit::ProgressLine& rows_;
};

std::int64_t BackUpCalls(World& world) {
    const std::filesystem::path file = world.application.folder / kBackupName;
    ShownWork shown;
    ShownBackup progress(shown.records);
    WriteBackup(world.application, {}, file, {BackupGroup::ProcessedCalls}, progress);
    return static_cast<std::int64_t>(std::filesystem::file_size(file));
}

std::int64_t RestoreCalls(World& world) {
    ShownWork shown;
    const auto spin = [&] { shown.records.Record(1, 2); };
    ReplayBackup(world.application, world.application.folder / kBackupName, {BackupGroup::ProcessedCalls},
                 spin);
    return 0;
}

/// A window of nobody that asks for all calls to be archived.
class ArchiveOfAll : public ArchiveView {
public:
    ArchiveOfAll(ArchiveDestination destination, const std::filesystem::path& file)
        : request_{.period = ArchivePeriod::SelectedMonths,
                   .firstMonth = "00",
                   .lastMonth = "99",
                   .destination = destination,
                   .target = {"archive", file.string()}} {}

    void ShowProgress() override {}
    ArchiveRequest Request() const override { return request_; }
    void LockInputs() override {}
    RunProgress& Records() override { return nobody_; }
    void ClearInputs() override {}
    void HideProgress() override {}
    void ResetProgress() override {}

private:
    ArchiveRequest request_;
    NoProgress nobody_;
};

std::int64_t Archive(World& world, ArchiveDestination destination) {
    ArchiveOfAll view(destination, world.application.folder / "archive.SAF");
    RunArchive(world.application, view);
    return 0;
}

void FetchAndWrite(World& world, std::int64_t bytes) {
    OpenBareClient(world.Parts())->Fetch(kAllCalls);
    WriteBytes((world.application.tempFolder / "floor").string(), bytes);
}

// The same rows with the stored costs beside them, which the report needs as well.
void FetchBothAndWrite(World& world, std::int64_t bytes) {
    OpenBareClient(world.Parts())->Fetch("SELECT * FROM tblcostcount");
    FetchAndWrite(world, bytes);
}

void SendCosts(World& world, std::int64_t) {
    const ado::Rows costs =
        DatabaseScope(world.application.session.database).Query("SELECT * FROM tblcostcount");
    const std::unique_ptr<BareClient> client = OpenBareClient(world.Parts());
    client->Execute("DELETE FROM tblcostcount");
    client->Fetch("SELECT * FROM tblphonedata WHERE Internal = '0'");
    const ado::Column id = costs.Find("DataID");
    const ado::Column cost = costs.Find("Cost");
    for (const ado::Row row : costs) {
        client->Execute(fmt::format("INSERT INTO tblcostcount(DataID, Cost) VALUES ({}, '{}')", row.Text(id),
                                    row.Text(cost)));
    }
}

// Archiving and restoring change the calls. A copy of the table brings them back.
constexpr const char* kCopyCalls = "CREATE TABLE IF NOT EXISTS benchcalls AS SELECT * FROM tblphonedata";

// Makes the backup where no earlier job has done it, and deletes the calls.
void TakeCallsAway(World& world) {
    if (!std::filesystem::exists(world.application.folder / kBackupName)) BackUpCalls(world);
    const std::unique_ptr<BareClient> client = OpenBareClient(world.Parts());
    for (const char* statement : {kCopyCalls, "DELETE FROM tblphonedata"}) client->Execute(statement);
}

void SendBackupLines(World& world, std::int64_t) {
    const std::unique_ptr<BareClient> client = OpenBareClient(world.Parts());
    std::ifstream lines(world.application.folder / kBackupName);
    for (std::string line; std::getline(lines, line);) client->Execute(line);
}

void BringCallsBack(World& world) {
    const std::unique_ptr<BareClient> client = OpenBareClient(world.Parts());
    client->Execute(kCopyCalls);
    for (const char* statement : {"DELETE FROM tblarchive", "DELETE FROM tblphonedata",
                                  "INSERT INTO tblphonedata SELECT * FROM benchcalls"}) {
        client->Execute(statement);
    }
}

/// Sends the statement that `statement` makes of each call, where it is set, and deletes the
/// call.
void SendForEachCall(World& world, const std::function<std::string(const ado::Row&)>& statement) {
    const ado::Rows calls = DatabaseScope(world.application.session.database).Query(kAllCalls);
    const std::unique_ptr<BareClient> client = OpenBareClient(world.Parts());
    for (const ado::Row call : calls) {
        if (statement) client->Execute(statement(call));
        client->Execute(fmt::format("DELETE FROM tblphonedata WHERE ID = {}", call.Text("ID")));
    }
}

std::string ArchiveRow(const ado::Row& call) {
    std::string values;
    for (const char* column : kArchiveColumns) {
        if (!values.empty()) values += ", ";
        values.append("'").append(call.Text(column)).append("'");
    }
    return fmt::format("INSERT INTO tblarchive({}) VALUES ({})", fmt::join(kArchiveColumns, ", "), values);
}

void SendArchiveRows(World& world, std::int64_t) {
    SendForEachCall(world, ArchiveRow);
}

void WriteArchiveText(World& world, std::int64_t) {
    const std::int64_t bytes = OpenBareClient(world.Parts())->Fetch(kAllCalls);
    WriteBytes((world.application.tempFolder / "floor").string(), bytes);
    SendForEachCall(world, {});
}

}  // namespace

std::vector<Job> Jobs() {
    // Computing costs leaves a server with rows to clear away: what needs no stored costs
    // is measured before.
    return {
        {"unattended report, plain columns", 1.5, PlainReport, FetchAndWrite, {}, true},
        {"unattended report, name, area, country, priced per row",
         2.5,
         [](World& world) { return FullReport(world, "0"); },
         FetchAndWrite,
         {},
         true},
        {"custom report, all fields", 2.5, CustomPage, FetchAndWrite, {}, true},
        {"dump", 1.5, Dump, FetchAndWrite},
        {"compute costs", 1.5, Costs, SendCosts},
        {"unattended report, name, area, country, stored cost",
         2.5,
         [](World& world) { return FullReport(world, "1"); },
         FetchBothAndWrite,
         {},
         true},
        {"preset page, coloured, all columns, progress shown", 3, PresetPage, FetchBothAndWrite, {}, true},
        {"extensions out of the calls", 1.5, FindExtensions, FetchCalls},
        {"import of 100,000 numbers", 1, ImportNumbers, SendNumbers, WriteNumbers},
        {"backup of the calls, progress shown", 1.5, BackUpCalls, FetchAndWrite},
        {"restore of the calls, progress shown", 1.3, RestoreCalls, SendBackupLines, TakeCallsAway},
        {"archive to a table", 1.3,
         [](World& world) { return Archive(world, ArchiveDestination::ToDatabase); }, SendArchiveRows,
         BringCallsBack, true},
        {"archive to a file", 1.3, [](World& world) { return Archive(world, ArchiveDestination::ToFile); },
         WriteArchiveText, BringCallsBack, true},
    };
}

std::int64_t TextOfAllCalls(World& world) {
    return OpenBareClient(world.Parts())->Fetch(kAllCalls);
}

}  // namespace tallix::bench
