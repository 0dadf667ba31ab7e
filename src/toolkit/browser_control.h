// Shows a report file and prints it.
//
//     browser->Navigate(PageFile(application));
//     browser->ExecWB(toolkit::BrowserCommand::Print, toolkit::PrintOption::AskUser);
#pragma once

#include <QVBoxLayout>
#include <QWebEngineView>
#include <QWidget>
#include <filesystem>
#include <memory>

#include "settings/settings_store.h"
#include "toolkit/local_page.h"
#include "toolkit/printers.h"

namespace tallix::toolkit {

enum class BrowserCommand { Print = 6 };
enum class PrintOption { AskUser = 1, DoNotAsk = 2 };

class BrowserControl : public QWidget {
    Q_OBJECT
public:
    /// `settings`, which name header and footer, and `printers` must outlive the control.
    BrowserControl(const SettingsStore& settings, Printers& printers, QWidget* parent = nullptr);
    ~BrowserControl() override;

    /// Starts to load a file as a page and returns. The file may be deleted at once.
    void Navigate(const std::filesystem::path& file);

    /// Whether the page is still loading.
    bool Busy() const { return page_->IsLoading(); }

    /// Prints the page once it is loaded, on the printer that the print dialog returns or on
    /// the current one. Header and footer are those of the settings at the time of the
    /// call. Does not wait for the printing.
    void ExecWB(BrowserCommand command, PrintOption option);

signals:
    /// The file could not be loaded, or its renderer has crashed.
    void NavigateError();

private:
    void ShowPage();

    const SettingsStore& settings_;
    Printers& printers_;
    std::shared_ptr<LocalPage> page_;
    QWebEngineView* view_;
};

}  // namespace tallix::toolkit
