#include "reporting/destinations_window.h"

#include "foundation/form_names.h"
#include "reporting/report_output_window.h"
#include "ui/forms.h"
#include "ui/main_menu_form.h"
#include "ui/printers.h"

namespace tallix {
namespace {

class FormsOfDelivery : public DeliveryWindows {
public:
    FormsOfDelivery(ui::Forms& forms, const Session& session, ui::Printers& printers, const char* requestForm)
        : forms_(forms), session_(session), printers_(printers), requestForm_(requestForm) {}

    void LoadReportOutput() override {
        if (auto* output = Output()) output->Navigate();
    }
    void ShowReportOutput() override { forms_.Show(kReportOutputForm); }
    void UnloadReportOutput() override { forms_.Unload(kReportOutputForm); }
    void PrintReportOutput() override {
        if (auto* output = Output()) output->Print(ui::PrintOption::DoNotAsk);
    }
    void UnloadRequest() override { forms_.Unload(requestForm_); }
    void HideMain() override { forms_.Hide(ui::MainMenuForm(session_)); }
    std::vector<std::string> Printers() override { return printers_.Names(); }
    void SetCurrentPrinter(const std::string& name) override { printers_.SetCurrent(name); }

private:
    ReportOutputWindow* Output() { return dynamic_cast<ReportOutputWindow*>(forms_.Load(kReportOutputForm)); }

    ui::Forms& forms_;
    const Session& session_;
    ui::Printers& printers_;
    const char* requestForm_;
};

}  // namespace

void DeliverReport(ui::Forms& forms, Application& application, ui::Printers& printers,
                   const DestinationChoice& choice, const char* requestForm) {
    FormsOfDelivery windows(forms, application.session, printers, requestForm);
    DeliverReport(application, windows, choice);
}

}  // namespace tallix
