// Runs one scheduled report unattended: always comma text, delivered to a folder or by mail.
// Nothing is shown, asked or logged; every failure is silent.
#pragma once

#include "reporting/catalogue.h"
#include "scheduling/scheduled_report.h"
#include "session/application.h"

namespace tallix {

/// Makes the report and delivers it. An existing target file is kept; the new result then
/// stays in the working files until the next run removes it. Schedules start in the same
/// minute and share the working files: each waits for its turn.
void RunScheduledReport(Application& application, ReportFlags& flags, const ScheduledReport& schedule);

}  // namespace tallix
