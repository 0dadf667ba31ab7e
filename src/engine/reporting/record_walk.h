// The record loop of every report.
#pragma once

#include <cstdint>

#include "database/database_scope.h"
#include "database/rows.h"
#include "host/run_progress.h"
#include "reporting/page_writer.h"

namespace tallix {

/// What becomes of a record. One that is not counted does not bring the bound nearer.
enum class Verdict { Row, NoRow, NotCounted };

/// Where a walk over the records ended.
struct Walk {
    std::int32_t written = 0;  ///< rows
    std::int64_t next = 0;     ///< the first record not looked at, counted from 0
};

/// Writes a row for each record that `rows` judges to have one. `bound` is the number of
/// records looked at, kept or not. `rows` has
///
///     Verdict Judge(ado::Row call);
///     const std::vector<std::string_view>& Cells(ado::Row call);
template <typename Rows>
Walk WalkRecords(std::int64_t bound, RunProgress& progress, const ado::Rows& calls, Rows& rows,
                 PageWriter& page) {
    const std::int64_t fetched = calls.Count();
    Walk walk;
    for (std::int64_t record = 1; walk.next < fetched && record <= bound; ++walk.next, ++record) {
        progress.Record(record, bound);
        const ado::Row call = calls[walk.next];
        const Verdict verdict = rows.Judge(call);
        if (verdict == Verdict::NoRow) continue;
        if (verdict == Verdict::NotCounted) {
            page.SkipRow();
            --record;
            continue;
        }
        page.WriteRow(rows.Cells(call));
        ++walk.written;
    }
    return walk;
}

}  // namespace tallix
