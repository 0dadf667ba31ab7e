// Every window of a session by its form name.
#pragma once

#include "foundation/application.h"
#include "reporting/catalogue.h"
#include "ui/forms.h"
#include "ui/printers.h"

namespace tallix {

/// Registers all forms but the splash, which knows the command line. What the windows work
/// with must outlive `forms`: `flags` are those of the latest report, `printers` hold the
/// current one.
void RegisterWindows(ui::Forms& forms, Application& application, ReportFlags& flags, ui::Printers& printers);

}  // namespace tallix
