#include "toolkit/local_page.h"

#include <unistd.h>

#include <QAccessible>
#include <QMimeDatabase>
#include <QWebEngineLoadingInfo>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>
#include <utility>

#include "platform/paths.h"

namespace tallix::toolkit {
namespace {

constexpr char kScheme[] = "tallix-report";
constexpr char kReportType[] = "text/html; charset=windows-1252";
constexpr char kReportEncoding[] = "windows-1252";
constexpr char kOpenFiles[] = "/proc/self/fd/";
constexpr char kFlagsVariable[] = "QTWEBENGINE_CHROMIUM_FLAGS";
constexpr char kAccessibleVariable[] = "QTWEBENGINE_ENABLE_LINUX_ACCESSIBILITY";

// The older layout needs less than half of the memory for a table, and a report page is
// one large table. The newer layout has a limit that no setting raises.
constexpr char kLayoutFlags[] = " --disable-blink-features=LayoutNG,LayoutNGTable";

// The browser reads these only when its first page is made.
void PrepareBrowser() {
    static const bool prepared = [] {
        QWebEngineUrlScheme scheme(kScheme);
        scheme.setSyntax(QWebEngineUrlScheme::Syntax::Path);
        scheme.setFlags(QWebEngineUrlScheme::LocalScheme | QWebEngineUrlScheme::LocalAccessAllowed);
        QWebEngineUrlScheme::registerScheme(scheme);
        qputenv(kFlagsVariable, qgetenv(kFlagsVariable) + kLayoutFlags);
        // Pages are announced only while a screen reader is running: it costs memory.
        if (QAccessible::isActive()) qputenv(kAccessibleVariable, "1");
        // The browser refuses to run as root inside its sandbox.
        if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
        return true;
    }();
    static_cast<void>(prepared);
}

// Keeps nothing on the disk.
std::unique_ptr<QWebEngineProfile> MakeProfile() {
    PrepareBrowser();
    return std::make_unique<QWebEngineProfile>();
}

QUrl UrlOf(const QString& path) {
    QUrl url;
    url.setScheme(kScheme);
    url.setPath(path, QUrl::DecodedMode);
    return url;
}

QString PictureType(const QString& path) {
    const QString type = QMimeDatabase().mimeTypeForFile(path).name();
    return type.startsWith("image/") ? type : QString();
}

}  // namespace

void ReportFiles::SetReport(const std::filesystem::path& file) {
    path_ = QString::fromStdString(file.string());
    opened_ = std::make_unique<QFile>(path_);
    if (!opened_->open(QIODevice::ReadOnly)) opened_.reset();
}

void ReportFiles::requestStarted(QWebEngineUrlRequestJob* job) {
    const std::string stored = job->requestUrl().path(QUrl::FullyDecoded).toStdString();
    const QString path = QString::fromStdString(ToNativePath(stored).string());
    if (path == path_) return SendReport(*job);
    const QString type = PictureType(path);
    auto picture = std::make_unique<QFile>(path);
    if (type.isEmpty() || !picture->open(QIODevice::ReadOnly)) {
        return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    }
    picture->setParent(job);
    job->reply(type.toUtf8(), picture.release());
}

// Each request reads the open file from its beginning, even when it has been deleted: a
// load that was replaced by another may have asked for it before.
void ReportFiles::SendReport(QWebEngineUrlRequestJob& job) {
    if (!opened_) return job.fail(QWebEngineUrlRequestJob::UrlNotFound);
    auto report = std::make_unique<QFile>(kOpenFiles + QString::number(opened_->handle()));
    if (!report->open(QIODevice::ReadOnly)) return job.fail(QWebEngineUrlRequestJob::UrlNotFound);
    report->setParent(&job);
    job.reply(kReportType, report.release());
}

void LocalRequestsOnly::interceptRequest(QWebEngineUrlRequestInfo& request) {
    request.block(request.requestUrl().scheme() != kScheme);
}

LocalPage::LocalPage() : profile_(MakeProfile()), page_(profile_.get()) {
    profile_->installUrlSchemeHandler(kScheme, &files_);
    profile_->setUrlRequestInterceptor(&interceptor_);
    QWebEngineSettings& settings = *page_.settings();
    settings.setDefaultTextEncoding(kReportEncoding);
    settings.setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    settings.setAttribute(QWebEngineSettings::ErrorPageEnabled, false);
    connect(&page_, &QWebEnginePage::loadingChanged, this, &LocalPage::Follow);
    connect(&page_, &QWebEnginePage::renderProcessTerminated, this, &LocalPage::Fail);
}

void LocalPage::Load(const std::filesystem::path& file) {
    files_.SetReport(std::filesystem::absolute(file));
    loading_ = true;
    page_.load(UrlOf(QString::fromStdString(std::filesystem::absolute(file).string())));
}

// A load that was replaced by another reports "stopped", which is ignored.
void LocalPage::Follow(const QWebEngineLoadingInfo& info) {
    if (info.status() == QWebEngineLoadingInfo::LoadFailedStatus) return Fail();
    if (info.status() != QWebEngineLoadingInfo::LoadSucceededStatus) return;
    loading_ = false;
    emit Loaded();
}

void LocalPage::Fail() {
    loading_ = false;
    emit Failed();
}

}  // namespace tallix::toolkit
