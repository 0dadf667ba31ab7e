#include "scheduling/mail.h"

#include <algorithm>
#include <ctime>
#include <string_view>
#include <system_error>

#include "platform/curl_handle.h"
#include "scheduling/mail_header.h"

namespace tallix {
namespace {

constexpr std::string_view kSenderName = "Tallix Reports";
/// The share of the time limit that reaching the server may take.
constexpr int kConnectShare = 3;

/// A list that curl reads; false from Add when memory ran out.
class TextList {
public:
    bool Add(const std::string& text) {
        curl_slist* longer = curl_slist_append(list_.get(), text.c_str());
        if (longer == nullptr) return false;
        static_cast<void>(list_.release());  // it is the head of the longer list
        list_.reset(longer);
        return true;
    }
    curl_slist* Get() const { return list_.get(); }

private:
    CurlOwned<curl_slist> list_;
};

/// One message on its way to one server. Every step returns whether it worked.
class Sending {
public:
    explicit Sending(std::chrono::milliseconds limit) : handle_(curl_easy_init()), limit_(limit) {}

    bool Prepare(const Mail& mail, const MailServer& server) {
        return handle_ != nullptr && SetServer(server) && SetCredentials(server) && SetEnvelope(mail) &&
               SetHeaders(mail) && SetContent(mail);
    }
    bool Perform() { return curl_easy_perform(handle_.get()) == CURLE_OK; }

private:
    template <typename Value>
    bool Set(CURLoption option, Value value) {
        return curl_easy_setopt(handle_.get(), option, value) == CURLE_OK;
    }

    bool SetServer(const MailServer& server);
    bool SetLimits();
    bool SetCredentials(const MailServer& server);
    bool SetEnvelope(const Mail& mail);
    bool SetHeaders(const Mail& mail);
    bool SetContent(const Mail& mail);
    bool AddBody(const std::string& text);
    bool Attach(const std::filesystem::path& file);

    CurlOwned<CURLU> url_;
    TextList recipients_;
    TextList headers_;
    CurlOwned<CURL> handle_;  ///< ends before what it reads, and after the content made for it
    CurlOwned<curl_mime> content_;
    std::chrono::milliseconds limit_;
};

bool Sending::SetServer(const MailServer& server) {
    url_.reset(curl_url());
    // Colons distinguish a bare IPv6 address from a name.
    const bool bare = server.host.find(':') != std::string::npos && !server.host.starts_with('[');
    const std::string host = bare ? "[" + server.host + "]" : server.host;
    return url_ && curl_url_set(url_.get(), CURLUPART_SCHEME, "smtp", 0) == CURLUE_OK &&
           curl_url_set(url_.get(), CURLUPART_HOST, host.c_str(), 0) == CURLUE_OK &&
           curl_url_set(url_.get(), CURLUPART_PORT, std::to_string(server.port).c_str(), 0) == CURLUE_OK &&
           Set(CURLOPT_CURLU, url_.get()) && Set(CURLOPT_PROTOCOLS_STR, "smtp") && Set(CURLOPT_PROXY, "") &&
           Set(CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_NONE)) && SetLimits();
}

bool Sending::SetLimits() {
    const long total = static_cast<long>(limit_.count());
    // Quick exit does not wait for a look-up of the server's name that hangs.
    return Set(CURLOPT_TIMEOUT_MS, total) &&
           Set(CURLOPT_CONNECTTIMEOUT_MS, std::max(total / kConnectShare, 1L)) && Set(CURLOPT_NOSIGNAL, 1L) &&
           Set(CURLOPT_QUICK_EXIT, 1L);
}

bool Sending::SetCredentials(const MailServer& server) {
    if (!server.authenticate) return true;
    return Set(CURLOPT_USERNAME, server.user.c_str()) && Set(CURLOPT_PASSWORD, server.password.c_str());
}

bool Sending::SetEnvelope(const Mail& mail) {
    return Set(CURLOPT_MAIL_FROM, PlainAddress(mail.from).c_str()) &&
           recipients_.Add(PlainAddress(mail.to)) && Set(CURLOPT_MAIL_RCPT, recipients_.Get());
}

bool Sending::SetHeaders(const Mail& mail) {
    return headers_.Add("Date: " + MailDate(std::time(nullptr))) &&
           headers_.Add("From: " + NamedAddress(kSenderName, mail.from)) &&
           headers_.Add("To: " + NamedAddress(mail.to, mail.to)) &&
           headers_.Add("Reply-To: " + PlainAddress(mail.from)) &&
           headers_.Add("Subject: " + HeaderText(mail.subject)) &&
           headers_.Add("Message-ID: " + NewMessageId(mail.from)) && Set(CURLOPT_HTTPHEADER, headers_.Get());
}

bool Sending::SetContent(const Mail& mail) {
    content_.reset(curl_mime_init(handle_.get()));
    if (!content_ || !AddBody(mail.body)) return false;
    for (const std::filesystem::path& file : mail.attachments) {
        std::error_code noSuchFile;
        if (std::filesystem::is_regular_file(file, noSuchFile) && !Attach(file)) return false;
    }
    return Set(CURLOPT_MIMEPOST, content_.get());
}

bool Sending::AddBody(const std::string& text) {
    curl_mimepart* part = curl_mime_addpart(content_.get());
    const std::string lines = WithNetworkLineEnds(text);
    return part != nullptr && curl_mime_data(part, lines.data(), lines.size()) == CURLE_OK &&
           curl_mime_type(part, "text/plain; charset=utf-8") == CURLE_OK &&
           curl_mime_encoder(part, "quoted-printable") == CURLE_OK;
}

bool Sending::Attach(const std::filesystem::path& file) {
    curl_mimepart* part = curl_mime_addpart(content_.get());
    return part != nullptr && curl_mime_filedata(part, file.c_str()) == CURLE_OK &&
           curl_mime_filename(part, HeaderText(file.filename().string()).c_str()) == CURLE_OK &&
           curl_mime_encoder(part, "base64") == CURLE_OK;
}

}  // namespace

bool SendMail(const Mail& mail, const MailServer& server, std::chrono::milliseconds limit) {
    const CurlLibrary library;
    if (!library.IsReady()) return false;
    Sending sending(limit);
    return sending.Prepare(mail, server) && sending.Perform();
}

}  // namespace tallix
