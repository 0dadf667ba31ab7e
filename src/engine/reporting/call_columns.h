// The places of the call columns in one result, looked up once before the record
// loop. A column that the statement did not return is absent.
#pragma once

#include "database/recordset.h"

namespace tallix {

struct CallColumns {
    explicit CallColumns(const ado::Recordset& calls)
        : id(calls.Find("ID")),
          date(calls.Find("Date")),
          time(calls.Find("Time")),
          duration(calls.Find("Duration")),
          summedDuration(calls.Find("sDuration")),
          extension(calls.Find("Extension")),
          numRings(calls.Find("NumRings")),
          origNum(calls.Find("OrigNum")),
          destNum(calls.Find("DestNum")),
          internal(calls.Find("Internal")),
          forward(calls.Find("Forward")),
          trunk(calls.Find("Trunk")),
          account(calls.Find("Account")),
          site(calls.Find("Site")) {}

    ado::Column id;
    ado::Column date;
    ado::Column time;
    ado::Column duration;
    ado::Column summedDuration;
    ado::Column extension;
    ado::Column numRings;
    ado::Column origNum;
    ado::Column destNum;
    ado::Column internal;
    ado::Column forward;
    ado::Column trunk;
    ado::Column account;
    ado::Column site;
};

/// The field of the current call; empty where it is NULL or the column is absent.
inline std::string_view FieldText(const ado::Recordset& calls, ado::Column column) {
    return column ? calls.Text(column) : std::string_view();
}

}  // namespace tallix
