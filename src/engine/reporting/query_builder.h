// The one SQL statement of a report run, put together from the report's keys and the
// run's inputs. Extension, account, site and group are filtered here; dates, times
// and office hours are tested on each fetched record (reporting/record_filters.h).
#pragma once

#include <string>
#include <string_view>

#include "database/database_scope.h"
#include "reporting/catalogue.h"
#include "reporting/query_rules.h"
#include "reporting/run_description.h"

namespace tallix {

struct QueryInputs {
    const ReportFlags& flags;
    const ReportOptions& options;
    const RunInputs& inputs;
    const QueryRules& rules;
    bool isMitel5000 = false;  ///< on such sites the extension is stored in `OrigNum`
};

/// Builds the statement of a report that is a file of keys. Values go in as they are,
/// between the quotes of `database`: one that holds a quote gives a statement that the
/// server refuses. The members of a group are looked up; where that fails its clause has
/// none.
std::string BuildQuery(const DatabaseScope& database, const QueryInputs& query);

/// Builds the statement of a custom report: the calls of an extension, or all for an empty
/// one.
std::string BuildCustomQuery(const DatabaseScope& database, std::string_view extension);

}  // namespace tallix
