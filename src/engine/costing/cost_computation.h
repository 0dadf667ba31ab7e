// The batch that prices every outside call and stores the result for the reports.
#pragma once

#include <cstdint>

#include "session/session.h"
#include "settings/settings_store.h"

namespace tallix {

/// Replaces the contents of tblcostcount: one row for each call with `Internal` "0"
/// and a duration. Returns the number of calls priced. Failures of the database are
/// passed over: what was computed until then stays, and rows that the server refuses
/// cost only themselves.
std::int64_t ComputeCosts(const Session& session, const SettingsStore& settings);

}  // namespace tallix
