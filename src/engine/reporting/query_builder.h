// The one SQL statement of a report run, put together from the report's keys and the
// run's inputs. Extension, account, site and group are filtered here; dates, times
// and office hours are tested on each fetched record (reporting/record_filters.h).
#pragma once

#include <string>

#include "reporting/catalogue.h"
#include "reporting/run_description.h"
#include "session/session.h"

namespace tallix {

struct QueryInputs {
    const ReportFlags& flags;
    const ReportOptions& options;
    const RunInputs& inputs;
    QueryRules rules;
    bool isMitel5000 = false;  ///< on such sites the extension is stored in `OrigNum`
};

/// Builds the statement. Values go in as they are, between the session's quotes: one
/// that holds a quote gives a statement that the server refuses. A group is looked up
/// over the session's open connection; without one its clause has no members.
std::string BuildQuery(Session& session, const QueryInputs& query);

}  // namespace tallix
