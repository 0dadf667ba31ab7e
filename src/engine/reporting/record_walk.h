// The record loop of every report.
#pragma once

#include <cstdint>

#include "database/recordset.h"
#include "host/run_progress.h"
#include "reporting/page_writer.h"

namespace tallix {

/// What becomes of a record. One that is not counted does not bring the bound nearer.
enum class Verdict { Row, NoRow, NotCounted };

/// Writes a row for each record that `rows` judges to have one, and returns their number.
/// `bound` is the number of records looked at, kept or not. `rows` has
///
///     Verdict Judge(const ado::Recordset& calls);
///     const std::vector<std::string_view>& Cells(const ado::Recordset& calls);
template <typename Rows>
std::int32_t WalkRecords(std::int64_t bound, RunProgress& progress, ado::Recordset& calls, Rows& rows,
                         PageWriter& page) {
    const std::int64_t fetched = calls.RecordCount();
    std::int32_t written = 0;
    std::int64_t record = 1;
    for (std::int64_t row = 0; row < fetched && record <= bound; ++row, ++record, calls.MoveNext()) {
        progress.Record(record, bound);
        const Verdict verdict = rows.Judge(calls);
        if (verdict == Verdict::NoRow) continue;
        if (verdict == Verdict::NotCounted) {
            page.SkipRow();
            --record;
            continue;
        }
        page.WriteRow(rows.Cells(calls));
        ++written;
    }
    return written;
}

}  // namespace tallix
