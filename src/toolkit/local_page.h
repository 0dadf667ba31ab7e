// A report file as a loaded page. The browser reads the file itself, as a page in
// Windows-1252 whatever the file's name ends in; the pictures it names are read from
// this machine, with "\" or "/" between their folders. Nothing else is fetched, no
// script runs and no link is followed: report rows carry text from outside.
//
// A page does not belong to a window, so that a print job can keep it when its window is gone.
#pragma once

#include <QFile>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineUrlSchemeHandler>
#include <filesystem>
#include <memory>

namespace tallix::toolkit {

/// Answers the requests of a page: the report file, and pictures.
class ReportFiles : public QWebEngineUrlSchemeHandler {
public:
    /// Opens the file at once: it may be deleted before the browser asks for it.
    void SetReport(const std::filesystem::path& file);

    void requestStarted(QWebEngineUrlRequestJob* job) override;

private:
    void SendReport(QWebEngineUrlRequestJob& job);

    QString path_;
    std::unique_ptr<QFile> opened_;  ///< null where it could not be opened
};

/// Lets only requests for files of this machine pass.
class LocalRequestsOnly : public QWebEngineUrlRequestInterceptor {
public:
    void interceptRequest(QWebEngineUrlRequestInfo& request) override;
};

class LocalPage : public QObject {
    Q_OBJECT
public:
    LocalPage();

    /// Starts to load a file in place of the present one and returns.
    void Load(const std::filesystem::path& file);

    bool IsLoading() const { return loading_; }

    QWebEnginePage& Page() { return page_; }

signals:
    /// The latest file has been loaded, or could not be: it does not exist, or the
    /// process that renders it has crashed.
    void Loaded();
    void Failed();

private:
    void Follow(const QWebEngineLoadingInfo& info);
    void Fail();

    LocalRequestsOnly interceptor_;
    ReportFiles files_;
    std::unique_ptr<QWebEngineProfile> profile_;
    QWebEnginePage page_;
    bool loading_ = false;
};

}  // namespace tallix::toolkit
