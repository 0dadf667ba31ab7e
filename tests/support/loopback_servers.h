// Real servers on loopback for tests, written in Python: of the web and of mail.
#pragma once

#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/temp_folder.h"

namespace tallix::test {

class PythonServer {
public:
    /// Starts tests/support/`script`, which chooses and prints its port and ends with its
    /// standard input, so that it never outlives the test. It gets the folder and the
    /// arguments, which hold no apostrophe. Throws std::runtime_error when it does not start.
    explicit PythonServer(const std::string& script, const std::vector<std::string>& arguments = {});
    ~PythonServer() { pclose(input_); }
    PythonServer(const PythonServer&) = delete;
    PythonServer& operator=(const PythonServer&) = delete;

    int Port() const { return port_; }

protected:
    const TempFolder folder_;

private:
    FILE* input_ = nullptr;
    int port_ = 0;
};

/// A web server, which is a proxy as well.
class HttpServer : public PythonServer {
public:
    HttpServer() : PythonServer("http_server.py") {}

    /// The address of a file on this server. "moved/NAME" redirects to NAME and "stalled"
    /// is never answered; what was not published is not found (404, with a body).
    std::string Address(const std::string& name) const {
        return "HTTP://127.0.0.1:" + std::to_string(Port()) + "/" + name;
    }
    void Publish(const std::string& name, std::string_view bytes) const { folder_.Write(name, bytes); }

    /// The request lines so far, each with a line feed after it.
    std::string Requests() const { return ReadBytes(folder_.Path() / "requests"); }
};

struct ReceivedMail {
    std::string from;  ///< of the envelope, as `to`
    std::string to;
    std::string user;  ///< who signed in; empty for nobody
    std::string raw;
    std::string body;                                              ///< decoded, as are the headers
    std::map<std::string, std::string> headers;                    ///< by name as sent
    std::vector<std::pair<std::string, std::string>> attachments;  ///< name and bytes
};

/// A mail server, which takes any mail and keeps it. Needs Debian's python3-aiosmtpd.
class SmtpServer : public PythonServer {
public:
    struct Account {
        std::string user;
        std::string password;
    };

    /// With an account it takes no mail from others.
    explicit SmtpServer(const std::optional<Account>& account = std::nullopt)
        : PythonServer("smtp_server.py",
                       {"--serve", account.value_or(Account()).user, account.value_or(Account()).password}) {}

    /// One that does not serve: "--silent" or "--hang-up".
    explicit SmtpServer(const char* manner) : PythonServer("smtp_server.py", {manner, "", ""}) {}

    /// The mails taken so far, first to last.
    std::vector<ReceivedMail> Mails() const;
};

}  // namespace tallix::test
