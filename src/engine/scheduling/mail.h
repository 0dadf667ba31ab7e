// One routine sends every mail of the system.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace tallix {

struct Mail {
    std::string from;
    std::string to;  ///< one address, shown as its own display name
    std::string subject;
    std::string body;
    std::vector<std::filesystem::path> attachments;  ///< files that do not exist are skipped
};

struct MailServer {
    std::string host;
    int port = 25;
    bool authenticate = true;
    std::string user;  ///< may be empty with authentication on
    std::string password;
    bool ssl = false;  ///< carried along; the mail goes out the same either way
};

/// The time limit of a send; connecting may take a third of it.
inline constexpr std::chrono::seconds kMailLimit{30};

/// Sends the mail in plain SMTP and waits for it, `limit` at most. Returns whether the
/// server took it. Texts are UTF-8;
/// control characters in addresses, subject and file names are dropped, so that none
/// can start a header or a command of its own. Never throws for a mail or a server.
bool SendMail(const Mail& mail, const MailServer& server, std::chrono::milliseconds limit = kMailLimit);

}  // namespace tallix
