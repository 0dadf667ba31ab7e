// One routine sends every mail of the system.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tallix {

struct Mail {
    std::string from;
    std::string to;
    std::string subject;
    std::string body;
    std::vector<std::filesystem::path> attachments;  ///< files that do not exist are skipped
};

struct MailServer {
    std::string host;
    int port = 25;
    bool authenticate = true;
    std::string user;
    std::string password;
    bool ssl = false;  ///< carried along; the mail goes out the same either way
};

/// Sends the mail, within 30 seconds. Returns whether the server took it; callers of
/// the system report nothing either way.
bool SendMail(const Mail& mail, const MailServer& server);

}  // namespace tallix
