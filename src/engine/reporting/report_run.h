// The one report pipeline: keys -> statement -> records -> cells -> page. A preset run
// at the screen and a scheduled run differ by their RunDescription and by nothing else.
//
//     ReportRun run(application, flags, progress);
//     if (run.Make(description) == RunOutcome::NoData) ...
//
// The run is in continue-on-error mode throughout: what fails is passed over, and no
// message is shown. The page is left in PageFile().
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "host/run_progress.h"
#include "reporting/catalogue.h"
#include "reporting/page_rendering.h"
#include "reporting/record_filters.h"
#include "reporting/row_resolution.h"
#include "reporting/run_description.h"
#include "session/application.h"

namespace tallix {

enum class RunOutcome {
    Complete,
    Refused,  ///< a demanded input is missing (RefusalOf); no page was begun
    NoData,   ///< the statement gave no records or was refused; the page has only its head
};

/// The working files of a run, in the folder for them. A run begins by deleting those of
/// the run before; cover and back page as well, where its rules write them.
std::filesystem::path PageFile(const Application& application);       ///< rpt.tmp
std::filesystem::path CommaTextFile(const Application& application);  ///< rpt.csv

class ReportRun {
public:
    /// `flags` are the process's report switches; all arguments must outlive the run.
    ReportRun(Application& application, ReportFlags& flags, RunProgress& progress);

    /// Makes the page. Opens the session's database and closes it again; `progress` hears
    /// of each record before any filter sees it.
    RunOutcome Make(const RunDescription& description);

    /// The first site, as the latest run read it; scheduled mail goes to its address.
    const Site& FirstSite() const { return site_; }

private:
    void DeleteWorkingFiles(std::span<const std::string_view> names) const;
    void ReadKeys(const RunDescription& description);
    RunOutcome MakePage(const RunDescription& description);
    RunOutcome WritePage(const RunDescription& description);
    void WriteCovers(const PageDescription& page) const;
    PageDescription DescribePage(const RunDescription& description) const;
    std::string TitleLine(const RunInputs& inputs) const;
    void OpenCalls(const RunDescription& description, ado::Recordset& calls);
    PageTotals WriteRows(const RunDescription& description, ado::Recordset& calls, Page& page);
    std::string GraphText(const RunDescription& description, ado::Recordset& calls) const;
    std::int32_t WriteKeyedRows(const RunDescription& description, std::string_view currency,
                                ado::Recordset& calls, Page& page);
    void WriteChosenRows(const CustomReport& report, ado::Recordset& calls, Page& page);
    template <typename Rows>
    void WalkRecords(std::int64_t bound, ado::Recordset& calls, Rows rows, Page& page);

    Application& application_;
    ReportFlags& flags_;
    RunProgress& progress_;
    ReportOptions options_;
    ReportSettings settings_;
    Site site_;
    std::int32_t recordsWritten_ = 0;
};

}  // namespace tallix
