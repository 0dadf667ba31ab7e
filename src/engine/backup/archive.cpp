#include "backup/archive.h"

#include <fmt/format.h>

#include <array>
#include <functional>
#include <stdexcept>

#include "backup/path_parts.h"
#include "backup/serving_database.h"
#include "backup/zip_files.h"
#include "compat/service_command.h"
#include "database/database_scope.h"
#include "database/recordset.h"
#include "failures/errors.h"
#include "platform/buffered_file.h"
#include "platform/paths.h"
#include "session/access_log.h"
#include "text/code_page.h"

namespace tallix {
namespace {

constexpr int kFirstYear = 2002;
constexpr int kLastYear = 2020;
constexpr int kMonths = 12;
constexpr std::size_t kYearLength = 4;
constexpr std::size_t kMonthLength = 7;  // MM/YYYY

constexpr std::string_view kEnding = ".SAF";
constexpr char kTemporaryName[] = "archive.tmp";
constexpr std::string_view kStopCollector = "Net Stop TALLIX_COLLECTOR";
constexpr std::string_view kStartCollector = "Net Start TALLIX_COLLECTOR";

// A line of the file has the number of its call and no site. A row of tblarchive has the
// site and a number of its own.
constexpr std::array<std::string_view, 15> kFileColumns = {
    "ID",       "Date",  "Time",        "Duration",  "Extension", "NumRings", "OrigNum", "DestNum",
    "Internal", "Error", "Supervision", "Speedcall", "Forward",   "Trunk",    "Account"};
constexpr std::array<std::string_view, 15> kTableColumns = {
    "Date",  "Time",        "Duration",  "Extension", "NumRings", "OrigNum", "DestNum", "Internal",
    "Error", "Supervision", "Speedcall", "Forward",   "Trunk",    "Account", "Site"};

const Message& Warning() {
    static const Message warning = {
        "Archive",
        "WARNING! - You are about to perform an archive of call data. This may result in a degrade in "
        "system performance.\n"
        "During archiving, the Tallix collector will be stopped resulting in no new Tallix data being "
        "input into the system. It is therefore recommended that you perform an archive at quiet periods "
        "of the day.\n\n"
        "Are you sure you wish to run the archive?",
        MessageIcon::Exclamation, MessageButtons::YesNo};
    return warning;
}

const Message& NoCallsMessage() {
    static const Message noCalls = {"Error",
                                    "An error has occured. This may be due to missing or corrupt call data.",
                                    MessageIcon::Critical};
    return noCalls;
}

const Message& CompleteMessage() {
    static const Message complete = {"Archive Complete!", "Tallix archive complete!",
                                     MessageIcon::Information};
    return complete;
}

bool IsComplete(const ArchiveRequest& request) {
    const ArchiveTarget& target = request.target;
    const bool toFile = request.destination == ArchiveDestination::ToFile;
    if (toFile && (target.location.empty() || target.name.empty())) return false;
    switch (request.period) {
        case ArchivePeriod::None:
            return false;
        case ArchivePeriod::EntireYear:
            return Len(request.year) >= kYearLength;
        case ArchivePeriod::SelectedMonths:
            break;
    }
    return !request.firstMonth.empty() && !request.lastMonth.empty();
}

using CallColumns = std::array<ado::Column, kFileColumns.size()>;

CallColumns Find(const ado::Recordset& set, const std::array<std::string_view, kFileColumns.size()>& names) {
    CallColumns columns;
    for (std::size_t i = 0; i < names.size(); ++i) columns.at(i) = set.Find(names.at(i));
    return columns;
}

/// The text file. Each line is in the file when its function returns.
class ArchiveText {
public:
    explicit ArchiveText(std::filesystem::path path) : path_(std::move(path)), file_(path_) {}

    void Line(std::string_view utf8) {
        AppendAnsi(file_.Waiting(), utf8);
        EndLine();
    }

    void Call(const ado::Recordset& calls, const CallColumns& columns) {
        for (const ado::Column& column : columns) {
            if (&column != columns.data()) file_.Waiting() += ' ';
            AppendAnsi(file_.Waiting(), calls.Text(column));
        }
        EndLine();
    }

    void Close() { Require(file_.Close()); }

private:
    void EndLine() {
        file_.Waiting() += "\r\n";
        Require(file_.Flush());
    }
    void Require(bool written) const {
        if (!written) throw std::runtime_error("The file " + path_.string() + " cannot be written");
    }

    std::filesystem::path path_;
    BufferedFile file_;
};

/// A set that was never opened cannot be closed.
void Close(ado::Recordset& set) {
    if (!set.IsOpen()) throw DatabaseError("The record set is closed");
    set.Close();
}

/// Moves the calls of one request.
class CallMove {
public:
    /// Opens the database.
    CallMove(Application& application, const ArchiveRequest& request, RunProgress& records)
        : application_(application),
          request_(request),
          records_(records),
          database_(OpenServing(application.events, application.session.database)) {}

    void Run();

private:
    using StoreCall = std::function<void()>;

    void Open(ado::Recordset& set, std::string_view statement) {
        application_.events.ServeDuring([&] { set = database_.Edit(statement); });
    }
    void MoveToFile();
    void MoveToTable();
    void MoveEach(const StoreCall& store);
    void Zip() const;

    Application& application_;
    const ArchiveRequest& request_;
    RunProgress& records_;
    DatabaseScope database_;
    ado::Recordset calls_;
    ado::Recordset archive_;
};

void CallMove::Run() {
    Open(calls_, "select * from tblphonedata");
    if (calls_.RecordCount() == 0) {
        application_.prompts.Show(NoCallsMessage());
    } else {
        Open(archive_, "SELECT * FROM tblarchive");
        if (request_.destination == ArchiveDestination::ToFile) MoveToFile();
        if (request_.destination == ArchiveDestination::ToDatabase) MoveToTable();
    }
    Close(calls_);
    Close(archive_);
}

void CallMove::MoveToFile() {
    const std::filesystem::path temporary = application_.folder / kTemporaryName;
    ArchiveText text(temporary);
    text.Line("Tallix Archive File");
    text.Line("Generated on: " + ShortDate(application_.clock.Now()));
    const CallColumns columns = Find(calls_, kFileColumns);
    MoveEach([&] { text.Call(calls_, columns); });
    text.Close();
    Zip();
    std::filesystem::remove(temporary);
}

void CallMove::Zip() const {
    ZipFiles(application_.events, application_.prompts,
             {.zipFile = ToNativePath(request_.target.location),
              .names = {kTemporaryName},
              .rootDirectory = application_.folder,
              .recursion = ZipRecursion::UnderRoot});
}

void CallMove::MoveToTable() {
    const CallColumns from = Find(calls_, kTableColumns);
    const CallColumns to = Find(archive_, kTableColumns);
    MoveEach([&] {
        archive_.AddNew();
        for (std::size_t i = 0; i < to.size(); ++i) archive_.Collect(to.at(i), calls_.At(from.at(i)));
        archive_.Update();
    });
}

void CallMove::MoveEach(const StoreCall& store) {
    const ado::Column date = calls_.Find("Date");
    const std::int64_t count = calls_.RecordCount();
    for (std::int64_t i = 1; i <= count; ++i, calls_.MoveNext()) {
        records_.Record(i, count);
        if (!IsInPeriod(request_, calls_.Text(date))) continue;
        store();
        calls_.Delete();
    }
}

}  // namespace

std::vector<std::string> ArchiveMonths() {
    std::vector<std::string> months;
    for (int year = kFirstYear; year <= kLastYear; ++year) {
        for (int month = 1; month <= kMonths; ++month) months.push_back(fmt::format("{:02}/{}", month, year));
    }
    return months;
}

ArchiveTarget TargetOfPath(const std::filesystem::path& chosen) {
    const std::string path = chosen;
    return {.name = PieceOf(path, PathPart::FileName),
            .location = path.ends_with(kEnding) ? path : path + std::string(kEnding)};
}

bool IsInPeriod(const ArchiveRequest& request, std::string_view date) {
    if (request.period == ArchivePeriod::EntireYear) return Right(date, kYearLength) == request.year;
    const std::string_view month = Right(date, kMonthLength);
    return month >= request.firstMonth && month <= request.lastMonth;
}

void RunArchive(Application& application, ArchiveView& view) {
    if (application.prompts.Show(Warning()) != Answer::Yes) return;
    view.ShowProgress();
    RunServiceCommand(kStopCollector);
    const ArchiveRequest request = view.Request();
    if (!IsComplete(request)) return;
    view.LockInputs();
    CallMove(application, request, view.Records()).Run();
    view.ClearInputs();
    RunServiceCommand(kStartCollector);
    view.HideProgress();
    application.prompts.Show(CompleteMessage());
    view.ResetProgress();
    const Session& session = application.session;
    WriteLog(DatabaseScope(session.database), session, application.clock, "Data Archived");
}

}  // namespace tallix
