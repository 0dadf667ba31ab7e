// Runs one scheduled report with nobody at the screen: always comma text, delivered to
// a folder or by mail. Nothing is shown, asked or logged; every failure is silent.
#pragma once

#include "reporting/catalogue.h"
#include "scheduling/scheduled_report.h"
#include "session/application.h"

namespace tallix {

/// Makes the report and delivers it. A target file that exists is left as it is and the
/// result stays behind in the working files, where the next run removes it. Schedules
/// start at the same minute and share the working files: each waits for its turn.
void RunScheduledReport(Application& application, ReportFlags& flags, const ScheduledReport& schedule);

}  // namespace tallix
