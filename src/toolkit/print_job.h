// A page on its way to a printer. The job stands by itself: it waits until the page is
// loaded, has it drawn as a document, stamps header and footer on it, gives it to the
// spooler and destroys itself. The window that began it may be gone by then; a process
// that ends waits for its jobs.
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
    /// Begins the job. What fails on the way ends it without a word.
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
