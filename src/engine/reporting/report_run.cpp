#include "reporting/report_run.h"

#include <memory>
#include <system_error>

#include "database/database_scope.h"
#include "failures/attempt.h"
#include "reporting/cover_pages.h"
#include "session/access_log.h"

namespace tallix {

namespace {

constexpr std::string_view kPageName = "rpt.tmp";
constexpr std::string_view kCommaTextName = "rpt.csv";
constexpr std::string_view kPageFiles[] = {kCommaTextName, kPageName};
constexpr std::string_view kCoverFiles[] = {kCoverName, kBackPageName};

}  // namespace

std::filesystem::path PageFile(const Application& application) {
    return application.tempFolder / kPageName;
}

std::filesystem::path CommaTextFile(const Application& application) {
    return application.tempFolder / kCommaTextName;
}

RunOutcome ReportRun::Make(const RunDescription& description) {
    const std::unique_ptr<ReportContent> content = MakeContent(description, application_, progress_);
    DeleteWorkingFiles(kPageFiles);
    if (content->Rules().writesCovers) DeleteWorkingFiles(kCoverFiles);
    const RunOutcome outcome = MakePage(description, *content);
    if (outcome == RunOutcome::Complete && content->Rules().logsTheRun) {
        LogOnItsOwn(application_.session, application_.clock, "Report Run - " + description.reportName);
    }
    return outcome;
}

void ReportRun::DeleteWorkingFiles(std::span<const std::string_view> names) const {
    std::error_code ignored;
    for (const std::string_view name : names) {
        std::filesystem::remove(application_.tempFolder / name, ignored);
    }
}

RunOutcome ReportRun::MakePage(const RunDescription& description, const ReportContent& content) {
    const DatabaseScope database = DatabaseScope::TryOpen(application_.session.database);
    refusal_ = content.Refusal();
    if (refusal_) return RunOutcome::Refused;
    site_ = ReadFirstSite(database, content.Settings().numbers);
    return WritePage(database, DescribePage(description, content), content);
}

RunOutcome ReportRun::WritePage(const DatabaseScope& database, const PageDescription& description,
                                const ReportContent& content) const {
    const std::unique_ptr<PageWriter> page =
        MakePageWriter(content.Shape(), PageFile(application_), description);
    page->WriteHead();
    if (content.Rules().writesCovers) WriteCovers(description);
    if (const std::string title = content.Title(); !title.empty()) page->WriteTitle(title);
    page->WriteColumnHeads(content.Heads());

    const ado::Rows calls = FetchCalls(database, content);
    if (calls.IsEmpty() && content.Rules().empty == EmptyResult::Stop) return RunOutcome::NoData;
    const auto [totals, next] = content.WriteRows(database, site_, calls, *page);
    page->WriteTotals(totals);
    page->WriteEnd(content.Graph(calls, next));
    page->Close();
    return RunOutcome::Complete;
}

PageDescription ReportRun::DescribePage(const RunDescription& description,
                                        const ReportContent& content) const {
    return {.settings = content.Settings(),
            .dateLine = content.Rules().dateLine,
            .reportName = description.reportName,
            .applicationFolder = application_.folder.string(),
            .docsLocation = application_.session.DocsLocation,
            .version = application_.version,
            .generated = application_.clock.Now(),
            .siteName = site_.name,
            .addressLines = site_.addressLines};
}

void ReportRun::WriteCovers(const PageDescription& page) const {
    const CoverSettings covers = LoadCoverSettings(application_.settings);
    const CoverDescription cover = {.settings = covers,
                                    .colours = page.settings.colours,
                                    .reportName = page.reportName,
                                    .applicationFolder = page.applicationFolder,
                                    .version = page.version,
                                    .printed = page.generated};
    if (covers.cover) WriteCover(application_.tempFolder / kCoverName, cover);
    if (covers.backing) WriteBackPage(application_.tempFolder / kBackPageName, cover);
}

// A statement that the server refuses has no rows.
ado::Rows ReportRun::FetchCalls(const DatabaseScope& database, const ReportContent& content) const {
    ado::Rows calls;
    Attempt([&] {
        application_.events.ServeDuring([&] { calls = database.Query(content.Statement(database, site_)); });
    });
    return calls;
}

}  // namespace tallix
