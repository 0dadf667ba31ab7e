#include "windows/reporting/report_delivery.h"

#include "toolkit/form_names.h"
#include "toolkit/forms.h"
#include "toolkit/main_menu_form.h"
#include "toolkit/printers.h"
#include "windows/reporting/report_output_window.h"

namespace tallix {
namespace {

class FormsOfDelivery : public DeliveryWindows {
public:
    FormsOfDelivery(toolkit::Forms& forms, const Session& session, toolkit::Printers& printers,
                    const char* requestForm)
        : forms_(forms), session_(session), printers_(printers), requestForm_(requestForm) {}

    void LoadReportOutput() override {
        if (auto* output = Output()) output->Navigate();
    }
    void ShowReportOutput() override { forms_.Show(kReportOutputForm); }
    void UnloadReportOutput() override { forms_.Unload(kReportOutputForm); }
    void PrintReportOutput() override {
        if (auto* output = Output()) output->Print(toolkit::PrintOption::DoNotAsk);
    }
    void UnloadRequest() override { forms_.Unload(requestForm_); }
    void HideMain() override { forms_.Hide(toolkit::MainMenuForm(session_)); }
    std::vector<std::string> Printers() override { return printers_.Names(); }
    void SetCurrentPrinter(const std::string& name) override { printers_.SetCurrent(name); }

private:
    ReportOutputWindow* Output() { return dynamic_cast<ReportOutputWindow*>(forms_.Load(kReportOutputForm)); }

    toolkit::Forms& forms_;
    const Session& session_;
    toolkit::Printers& printers_;
    const char* requestForm_;
};

}  // namespace

void DeliverReport(toolkit::Forms& forms, Application& application, toolkit::Printers& printers,
                   const DestinationChoice& choice, const char* requestForm) {
    FormsOfDelivery windows(forms, application.session, printers, requestForm);
    DeliverReport(application, windows, choice);
}

}  // namespace tallix
