// A real mail server on loopback for tests: it takes any mail and keeps it to be looked
// at. Needs Debian's python3-aiosmtpd.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "support/python_server.h"
#include "support/temp_folder.h"

namespace tallix::test {

struct ReceivedMail {
    std::string from;  ///< of the envelope, as `to`
    std::string to;
    std::string user;  ///< who signed in; empty for nobody
    std::string raw;
    std::string body;                                              ///< decoded, as are the headers
    std::map<std::string, std::string> headers;                    ///< by name as sent
    std::vector<std::pair<std::string, std::string>> attachments;  ///< name and bytes
};

class SmtpServer {
public:
    struct Account {
        std::string user;
        std::string password;
    };

    /// Starts the server; with an account it takes no mail from others. Throws
    /// std::runtime_error when it does not start.
    explicit SmtpServer(const std::optional<Account>& account = std::nullopt);

    /// Starts one that does not serve: "--silent" or "--hang-up".
    explicit SmtpServer(const char* manner) : server_("smtp_server.py", {folder_.Path(), manner}) {}

    int Port() const { return server_.Port(); }

    /// The mails taken so far, first to last.
    std::vector<ReceivedMail> Mails() const;

private:
    TempFolder folder_;
    PythonServer server_;
};

}  // namespace tallix::test
