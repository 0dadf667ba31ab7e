// The destinations of a report as the windows serve them.
//
//     DeliverReport(forms, application, printers, choice, kPresetReportsForm);
#pragma once

#include "reporting/destinations.h"

namespace tallix {

namespace toolkit {
class Forms;
class Printers;
}  // namespace toolkit

/// Delivers the page of the latest run. `requestForm` is the name of the form that
/// asked for it; each destination unloads that form. A printer that does not exist leaves
/// it loaded.
void DeliverReport(toolkit::Forms& forms, Application& application, toolkit::Printers& printers,
                   const DestinationChoice& choice, const char* requestForm);

}  // namespace tallix
