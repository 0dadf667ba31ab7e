// Where a finished report goes: on the screen, to a printer, or into another
// application. This is what each destination does, step by step; the windows
// are reached through an interface.
//
// A window hands its report over with the DeliverReport of windows/reporting/report_delivery.h.
#pragma once

#include <string>
#include <vector>

#include "reporting/external_applications.h"
#include "session/application.h"

namespace tallix {

enum class Destination { OnScreen, ToPrinter, InExternalApplication };

/// What a person chose in the frame "Output Report".
struct DestinationChoice {
    Destination destination = Destination::OnScreen;
    std::string printer{};                   ///< text of the printer list, for ToPrinter
    std::string application{};               ///< text of the application list, for InExternalApplication
    std::string editorFile{kCommaTextPath};  ///< what the text editor opens
};

/// The windows and the print system, as the destinations use them.
class DeliveryWindows {
public:
    virtual ~DeliveryWindows() = default;

    /// The window that shows reports: loaded without being seen, with the page on its
    /// way into it; shown; unloaded, which deletes the page.
    virtual void LoadReportOutput() = 0;
    virtual void ShowReportOutput() = 0;
    virtual void UnloadReportOutput() = 0;

    /// Sends the loaded page to the current printer and returns at once.
    virtual void PrintReportOutput() = 0;

    /// The window that asked for the report; unloading it shows the main window.
    virtual void UnloadRequest() = 0;
    virtual void HideMain() = 0;

    virtual std::vector<std::string> Printers() = 0;
    virtual void SetCurrentPrinter(const std::string& name) = 0;
};

/// Delivers the page that the latest run left. Failures are not reported: a printer that
/// does not exist, a program that cannot be started, a file that cannot be renamed.
void DeliverReport(Application& application, DeliveryWindows& windows, const DestinationChoice& choice);

}  // namespace tallix
