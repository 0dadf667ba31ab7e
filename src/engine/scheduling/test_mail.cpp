#include "scheduling/test_mail.h"

#include <optional>

#include "database/database_scope.h"
#include "failures/attempt.h"
#include "platform/paths.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr char kTitle[] = "Tallix Reports";
constexpr char kLogo[] = "\\Company Docs\\Logo.jpg";

/// The address of the first site. Nothing without one.
std::optional<std::string> Recipient(const Session& session) {
    const ado::Rows sites = DatabaseScope(session.database).Query("select * from tblsite");
    if (sites.IsEmpty()) return std::nullopt;
    return std::string(sites.First().Text("Email"));
}

MailServer ServerOf(const TestMailInput& input) {
    MailServer server;
    server.host = input.server;
    server.port = 0;
    server.authenticate = input.authenticate;
    server.ssl = input.ssl;
    Attempt([&] { server.port = ToInteger16(input.port); });
    if (!input.authenticate) return server;
    server.user = input.user;
    server.password = input.password;
    return server;
}

}  // namespace

Message SendTestMail(Application& application, const TestMailInput& input, TestAttachment attachment) {
    const std::optional<std::string> recipient = Recipient(application.session);
    if (!recipient) return {kTitle, "No default site has been configured, test email failed!"};
    Mail mail = {.from = input.from,
                 .to = *recipient,
                 .subject = "Tallix Test Email",
                 .body = "This is a test email from Tallix Call Accounting System",
                 .attachments = {}};
    if (attachment == TestAttachment::Logo) {
        mail.attachments.push_back(FindIgnoringCase(ToNativePath(application.folder.string() + kLogo)));
    }
    SendMail(mail, ServerOf(input));
    return {kTitle, "Test Email Sent!"};
}

}  // namespace tallix
