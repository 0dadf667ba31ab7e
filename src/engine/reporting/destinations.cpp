#include "reporting/destinations.h"

#include "compat/shell_command.h"
#include "platform/move_file.h"
#include "reporting/report_run.h"

namespace tallix {
namespace {

void ShowOnScreen(Application& application, DeliveryWindows& windows) {
    windows.LoadReportOutput();
    application.events.Serve();
    windows.ShowReportOutput();
    windows.UnloadRequest();
    windows.HideMain();
}

// Every printer of that name prints. The printing is not waited for.
void Print(Application& application, DeliveryWindows& windows, const std::string& printer) {
    for (const std::string& name : windows.Printers()) {
        if (name != printer) continue;
        application.events.Serve();
        windows.SetCurrentPrinter(name);
        windows.LoadReportOutput();
        application.events.Serve();
        windows.PrintReportOutput();
        application.events.Serve();
        windows.UnloadReportOutput();
        windows.UnloadRequest();
    }
}

// A comma text that is still there, held by an application, stays and is what opens.
void OpenInApplication(const Application& application, DeliveryWindows& windows,
                       const DestinationChoice& choice) {
    MoveWithoutReplacing(PageFile(application), CommaTextFile(application));
    const std::string command = ExternalCommand(application, choice.application, choice.editorFile);
    if (!command.empty()) Shell(command);
    windows.UnloadRequest();
}

}  // namespace

void DeliverReport(Application& application, DeliveryWindows& windows, const DestinationChoice& choice) {
    switch (choice.destination) {
        case Destination::OnScreen:
            return ShowOnScreen(application, windows);
        case Destination::ToPrinter:
            return Print(application, windows, choice.printer);
        case Destination::InExternalApplication:
            return OpenInApplication(application, windows, choice);
    }
}

}  // namespace tallix
