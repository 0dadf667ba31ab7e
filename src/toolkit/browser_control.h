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

    /// Begins to load a file as a page, and returns. The file may be deleted at once.
    void Navigate(const std::filesystem::path& file);

    /// Whether the page is still on its way.
    bool Busy() const { return page_->IsLoading(); }

    /// Prints the page, once it is there, on the printer that the print dialog names or on
    /// the current one. Header and footer are those of the settings at the time of the
    /// call; the printing itself is not waited for.
    void ExecWB(BrowserCommand command, PrintOption option);

signals:
    /// The file could not be loaded, or what draws it has died.
    void NavigateError();

private:
    void ShowPage();

    const SettingsStore& settings_;
    Printers& printers_;
    std::shared_ptr<LocalPage> page_;
    QWebEngineView* view_;
};

}  // namespace tallix::toolkit
