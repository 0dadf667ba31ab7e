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
/// asked for it; each destination unloads that form, save the printer's when no printer
/// has the chosen name.
void DeliverReport(toolkit::Forms& forms, Application& application, toolkit::Printers& printers,
                   const DestinationChoice& choice, const char* requestForm);

}  // namespace tallix
