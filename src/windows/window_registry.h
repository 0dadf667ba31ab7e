// Every window of a session by its form name.
#pragma once

#include "reporting/catalogue.h"
#include "session/application.h"
#include "toolkit/forms.h"
#include "toolkit/printers.h"

namespace tallix {

/// Registers all forms but the splash, which needs the command line. The arguments must
/// outlive `forms`. `flags` are those of the latest report, `printers` hold the current
/// one.
void RegisterWindows(toolkit::Forms& forms, Application& application, ReportFlags& flags,
                     toolkit::Printers& printers);

}  // namespace tallix
