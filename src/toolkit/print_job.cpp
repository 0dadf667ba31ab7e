#include "toolkit/print_job.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QPageLayout>
#include <QPointer>
#include <QTimer>
#include <chrono>
#include <utility>

#include "toolkit/page_stamp.h"

namespace tallix::toolkit {
namespace {

constexpr char kUntitled[] = "Tallix Reports";
constexpr std::chrono::minutes kLongestWait{5};  ///< of an ending process for one job

// Room for a header and a footer in the margins.
const QPageLayout& SheetLayout() {
    static const QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                    QMarginsF(15, 19, 15, 19), QPageLayout::Millimeter);
    return layout;
}

}  // namespace

void PrintJob::Start(std::shared_ptr<LocalPage> page, PageSetup setup, PrintTicket ticket) {
    auto* job = new PrintJob(std::move(page), std::move(setup), std::move(ticket));
    if (!job->page_->IsLoading()) job->Draw();
}

PrintJob::PrintJob(std::shared_ptr<LocalPage> page, PageSetup setup, PrintTicket ticket)
    : page_(std::move(page)), setup_(std::move(setup)), ticket_(std::move(ticket)) {
    connect(page_.get(), &LocalPage::Loaded, this, &PrintJob::Draw);
    connect(page_.get(), &LocalPage::Failed, this, &PrintJob::End);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &PrintJob::WaitForTheEnd);
}

void PrintJob::Draw() {
    const QString title = page_->Page().title();
    ticket_.title = title.isEmpty() ? kUntitled : title.toStdString();
    const QPointer<PrintJob> self(this);
    page_->Page().printToPdf(
        [self](const QByteArray& pdf) {
            if (self) self->Spool(pdf);
        },
        SheetLayout());
}

void PrintJob::Spool(const QByteArray& pdf) {
    const QByteArray stamped = StampPages(pdf, setup_);
    if (!stamped.isEmpty())
        SpoolDocument(ticket_, {stamped.constData(), static_cast<std::size_t>(stamped.size())});
    End();
}

void PrintJob::End() {
    if (std::exchange(ended_, true)) return;
    deleteLater();
}

void PrintJob::WaitForTheEnd() {
    QEventLoop loop;
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    QTimer limit;
    connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    limit.start(kLongestWait);
    if (!ended_) loop.exec();
}

}  // namespace tallix::toolkit
