#include "scheduling/mail.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <thread>

#include "support/smtp_server.h"

namespace tallix {
namespace {

using std::chrono::steady_clock;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::SizeIs;

const Mail kMail{
    "reports@example.test", "manager@example.test", "Tallix Scheduled Report", "Please see attached.", {}};

MailServer On(const test::SmtpServer& server) {
    return {"127.0.0.1", server.Port(), false, "", "", false};
}

/// Port of a socket that listens and never says a word; closed, one that refuses.
class SilentServer {
public:
    SilentServer() : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof(address);
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        if (bind(socket_, generic, length) != 0 || listen(socket_, 1) != 0) ADD_FAILURE() << "no socket";
        getsockname(socket_, generic, &length);
        port_ = ntohs(address.sin_port);
    }
    ~SilentServer() { close(socket_); }
    int Port() const { return port_; }

    /// Takes one caller, answers as if it were to take a mail, and hangs up.
    void HangUpInTheMiddle() const {
        const int caller = accept(socket_, nullptr, nullptr);
        std::array<char, 512> command{};
        for (const std::string_view reply : {"220 here\r\n", "250 greetings\r\n", "250 sender\r\n"}) {
            send(caller, reply.data(), reply.size(), MSG_NOSIGNAL);
            recv(caller, command.data(), command.size(), 0);
        }
        close(caller);
    }

private:
    int socket_;
    int port_ = 0;
};

TEST(MailSystem, AttachmentsArriveByteForByteAndMissingOnesAreLeftOut) {
    const test::TempFolder folder;
    const test::SmtpServer server;
    std::string bytes(200000, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 31 % 251);
    Mail mail = kMail;
    mail.attachments = {folder.Write("rpt.csv", bytes), folder.Path() / "missing.csv", folder.Path(),
                        folder.Write("résumé.csv", "")};
    ASSERT_TRUE(SendMail(mail, On(server)));
    ASSERT_THAT(server.Mails(), SizeIs(1));
    EXPECT_THAT(server.Mails()[0].attachments, ElementsAre(Pair("rpt.csv", bytes), Pair("résumé.csv", "")));
}

TEST(MailSystem, HeadersNameBothSidesAndLinesEndAsOnTheWire) {
    const test::SmtpServer server;
    Mail mail = kMail;
    mail.body = "First\n.dot\n\n.\nMüller " + std::string(2000, 'x');
    mail.subject = "Anrufe für Müller €, alle Abteilungen und noch viel mehr als in eine Zeile passt";
    ASSERT_TRUE(SendMail(mail, On(server)));
    const test::ReceivedMail got = server.Mails().at(0);
    EXPECT_EQ(got.from, mail.from);
    EXPECT_EQ(got.to, mail.to);
    EXPECT_EQ(got.user, "");
    EXPECT_THAT(got.raw, HasSubstr("From: \"Tallix Reports\" <reports@example.test>\r\n"));
    EXPECT_THAT(got.raw, HasSubstr("To: \"manager@example.test\" <manager@example.test>\r\n"));
    EXPECT_EQ(got.headers.at("Reply-To"), mail.from);
    EXPECT_EQ(got.headers.at("Subject"), mail.subject);
    EXPECT_THAT(got.headers.at("Message-ID"), HasSubstr("@example.test>"));
    EXPECT_THAT(got.headers.at("Date"), ::testing::MatchesRegex("[A-Z][a-z]+, [0-9]+ [A-Z].+ [+-][0-9]+"));
    EXPECT_THAT(got.body, HasSubstr("\n.dot\n\n.\nMüller xxx"));
    EXPECT_THAT(got.attachments, IsEmpty());
    for (std::size_t end = got.raw.find('\n'); end != std::string::npos; end = got.raw.find('\n', end + 1)) {
        ASSERT_EQ(got.raw[end - 1], '\r');
    }
}

TEST(MailSystem, LineEndsInAddressesAndSubjectStartNoHeaderAndNoCommand) {
    const test::SmtpServer server;
    Mail mail = kMail;
    mail.subject = "Report\r\nBcc: spy@example.test\r\n\r\nOther body";
    mail.from = "\r\nreports@example.test\r\n";
    ASSERT_TRUE(SendMail(mail, On(server)));
    mail.from = "reports@example.test>\r\nRCPT TO:<spy@example.test";
    SendMail(mail, On(server));
    for (const test::ReceivedMail& taken : server.Mails()) EXPECT_EQ(taken.to, kMail.to);
    const test::ReceivedMail got = server.Mails().at(0);
    EXPECT_EQ(got.from, "reports@example.test");
    EXPECT_FALSE(got.headers.contains("Bcc"));
    EXPECT_EQ(got.headers.at("Subject"), "ReportBcc: spy@example.testOther body");
    EXPECT_EQ(got.body, kMail.body);
}

TEST(MailSystem, AuthenticationIsDoneWhenItIsOnAndOnlyThen) {
    const test::SmtpServer server(test::SmtpServer::Account{"tallix", "p\"a:ss wörd"});
    MailServer account = On(server);
    EXPECT_FALSE(SendMail(kMail, account));
    account.user = "tallix";
    account.password = "p\"a:ss wörd";
    EXPECT_FALSE(SendMail(kMail, account)) << "user and password must not count while the switch is off";
    account.authenticate = true;
    EXPECT_TRUE(SendMail(kMail, account));
    account.ssl = true;
    EXPECT_TRUE(SendMail(kMail, account));
    account.password = "wrong";
    EXPECT_FALSE(SendMail(kMail, account));
    ASSERT_THAT(server.Mails(), SizeIs(2));
    EXPECT_EQ(server.Mails()[0].user, "tallix");
    account.user = "";
    const test::SmtpServer open;
    account.port = open.Port();
    EXPECT_TRUE(SendMail(kMail, account)) << "a server that asks for nobody's name takes the mail";
}

TEST(MailSystem, ServersThatDoNotServeEndTheSendInTime) {
    EXPECT_LE(kMailLimit, std::chrono::seconds(30));
    MailServer address{"127.0.0.1", 0, true, "", "", false};
    {
        const SilentServer silent;
        address.port = silent.Port();
        const auto start = steady_clock::now();
        EXPECT_FALSE(SendMail(kMail, address, std::chrono::milliseconds(600)));
        EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(5));
    }
    const auto start = steady_clock::now();
    {
        const SilentServer dropping;
        address.port = dropping.Port();
        const std::jthread serving([&] { dropping.HangUpInTheMiddle(); });
        EXPECT_FALSE(SendMail(kMail, address)) << "hung up on";
    }
    EXPECT_FALSE(SendMail(kMail, address));  // now nobody listens there
    for (const char* host : {"", "no such host", "mail.example.test/path", "a\r\nb"}) {
        EXPECT_FALSE(SendMail(kMail, {host, 25, true, "", "", false})) << host;
    }
    EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(5));
}

}  // namespace
}  // namespace tallix
