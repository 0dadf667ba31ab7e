// The mails that try out the e-mail settings with the values on the screen.
#pragma once

#include <string>

#include "scheduling/mail.h"
#include "session/application.h"

namespace tallix {

/// What the e-mail settings hold, as text.
struct TestMailInput {
    std::string from;
    std::string server;
    std::string port;  ///< a text that is not a number becomes port 0
    bool authenticate = true;
    std::string user;
    std::string password;
    bool ssl = false;
};

enum class TestAttachment { None, Logo };

/// Sends a test mail to the first site and waits for it. Returns the message to show, which
/// is the same whether or not the mail went out. Without a site nothing is sent and the
/// message says so. A missing logo is left out. Throws DatabaseError.
Message SendTestMail(Application& application, const TestMailInput& input, TestAttachment attachment);

}  // namespace tallix
