// Prints a page. The job owns itself: it waits until the page is loaded, renders it as a
// document, stamps header and footer on it, passes it to the spooler and destroys itself.
// The window that started it may be gone by then. A process that ends waits for its
// jobs.
#pragma once

#include <QObject>
#include <memory>

#include "platform/print_spooler.h"
#include "settings/page_setup.h"
#include "toolkit/local_page.h"

namespace tallix::toolkit {

class PrintJob : public QObject {
    Q_OBJECT
public:
    /// Starts the job. A failure ends it silently.
    static void Start(std::shared_ptr<LocalPage> page, PageSetup setup, PrintTicket ticket);

private:
    PrintJob(std::shared_ptr<LocalPage> page, PageSetup setup, PrintTicket ticket);

    void Draw();
    void Spool(const QByteArray& pdf);
    void End();
    void WaitForTheEnd();

    std::shared_ptr<LocalPage> page_;
    PageSetup setup_;
    PrintTicket ticket_;
    bool ended_ = false;
};

}  // namespace tallix::toolkit
