// What a kind of run contributes to the pipeline of reporting/report_run.h: the rules of
// the run, the statement, the heads and the rows.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "database/database_scope.h"
#include "host/run_progress.h"
#include "reporting/page_writer.h"
#include "reporting/report_settings.h"
#include "reporting/run_description.h"
#include "reporting/site.h"
#include "session/application.h"

namespace tallix {

/// What happens when the statement gives no records.
enum class EmptyResult { Stop, CloseThePage };

/// What the pipeline does round the page.
struct RunRules {
    EmptyResult empty = EmptyResult::Stop;
    bool writesCovers = false;  ///< cover and back page, where the settings have them on
    bool logsTheRun = true;     ///< a finished page gives a row in the access log
    DateLine dateLine{};
};

class ReportContent {
public:
    virtual ~ReportContent() = default;

    virtual const RunRules& Rules() const = 0;
    virtual const ReportSettings& Settings() const = 0;
    virtual PageShape Shape() const = 0;

    /// Why the run is refused; nothing where it is not.
    virtual std::optional<Message> Refusal() const { return std::nullopt; }

    /// The line above the table; empty for none.
    virtual std::string Title() const { return {}; }
    virtual std::vector<std::string_view> Heads() const = 0;

    virtual std::string Statement(const DatabaseScope& database, const Site& site) const = 0;

    struct Written {
        PageTotals totals{};
        std::int64_t next = 0;  ///< the first call not looked at, counted from 0
    };

    /// Writes the rows of the calls, and reports each call to the progress.
    virtual Written WriteRows(const DatabaseScope& database, const Site& site, const ado::Rows& calls,
                              PageWriter& page) const = 0;

    /// What ends the page. `next` is the first call that WriteRows did not look at.
    virtual std::string Graph(const ado::Rows& /*calls*/, std::int64_t /*next*/) const { return {}; }
};

/// The content of a run. Takes the settings and the keys that it needs. All arguments must
/// outlive it.
std::unique_ptr<ReportContent> MakeContent(const RunDescription& run, Application& application,
                                           RunProgress& progress);

}  // namespace tallix
