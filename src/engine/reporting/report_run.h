// The one report pipeline: keys -> statement -> records -> cells -> page. The kinds of
// run differ by their ReportContent and by nothing else.
//
//     ReportRun run(application, progress);
//     if (run.Make(description) == RunOutcome::NoData) ...
//
// The run is in continue-on-error mode throughout: what fails is passed over, and no
// message is shown. The page is left in PageFile().
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

#include "database/database_scope.h"
#include "host/run_progress.h"
#include "reporting/report_content.h"
#include "reporting/run_description.h"
#include "session/application.h"

namespace tallix {

enum class RunOutcome {
    Complete,
    Refused,  ///< a demanded input is missing (Refusal); no page was begun
    NoData,   ///< the statement gave no records or was refused; the page has only its head
};

/// The working files of a run, in the folder for them. A run begins by deleting those of
/// the run before; cover and back page as well, where its rules write them.
std::filesystem::path PageFile(const Application& application);       ///< rpt.tmp
std::filesystem::path CommaTextFile(const Application& application);  ///< rpt.csv

class ReportRun {
public:
    /// Both arguments must outlive the run.
    ReportRun(Application& application, RunProgress& progress)
        : application_(application), progress_(progress) {}

    /// Makes the page. Opens the session's database and closes it again. `progress` gets
    /// each record before any filter sees it.
    RunOutcome Make(const RunDescription& description);

    /// Why the latest run was refused.
    const std::optional<Message>& Refusal() const { return refusal_; }

    /// The first site, as the latest run read it; scheduled mail goes to its address.
    const Site& FirstSite() const { return site_; }

private:
    void DeleteWorkingFiles(std::span<const std::string_view> names) const;
    RunOutcome MakePage(const RunDescription& description, const ReportContent& content);
    RunOutcome WritePage(const DatabaseScope& database, const PageDescription& description,
                         const ReportContent& content) const;
    PageDescription DescribePage(const RunDescription& description, const ReportContent& content) const;
    void WriteCovers(const PageDescription& page) const;
    ado::Rows FetchCalls(const DatabaseScope& database, const ReportContent& content) const;

    Application& application_;
    RunProgress& progress_;
    std::optional<Message> refusal_;
    Site site_;
};

}  // namespace tallix
