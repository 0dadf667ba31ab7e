#include "scheduling/mail.h"

#include <gmock/gmock.h>

#include "scheduling/test_mail.h"
#include "support/loopback_servers.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Pair;

const Mail kMail{
    "reports@example.test", "manager@example.test", "Tallix Scheduled Report", "Please see attached.", {}};

MailServer On(const test::SmtpServer& server) {
    return {"127.0.0.1", server.Port(), false, "", "", false};
}

TEST(MailSystem, AttachmentsArriveByteForByteAndMissingOnesAreLeftOut) {
    const test::TempFolder folder;
    const test::SmtpServer server;
    std::string bytes(200000, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 31 % 251);
    Mail mail = kMail;
    mail.attachments = {folder.Write("rpt.csv", bytes), folder.Path() / "missing.csv", folder.Path(),
                        folder.Write("résumé.csv", "")};
    ASSERT_TRUE(SendMail(mail, On(server)));
    EXPECT_THAT(server.Mails().at(0).attachments,
                ElementsAre(Pair("rpt.csv", bytes), Pair("résumé.csv", "")));
}

TEST(MailSystem, HeadersNameBothSidesAndLinesEndWithCarriageReturns) {
    const test::SmtpServer server;
    Mail mail = kMail;
    mail.body = "First\n.dot\n\n.\nMüller " + std::string(2000, 'x');
    mail.subject = "Anrufe für Müller €, alle Abteilungen und noch viel mehr als in eine Zeile passt";
    ASSERT_TRUE(SendMail(mail, On(server)));
    const test::ReceivedMail got = server.Mails().at(0);
    EXPECT_EQ(got.from, mail.from);
    EXPECT_EQ(got.to, mail.to);
    EXPECT_THAT(got.raw, HasSubstr("From: \"Tallix Reports\" <reports@example.test>\r\n"));
    EXPECT_THAT(got.raw, HasSubstr("To: \"manager@example.test\" <manager@example.test>\r\n"));
    EXPECT_EQ(got.headers.at("Reply-To"), mail.from);
    EXPECT_EQ(got.headers.at("Subject"), mail.subject);
    EXPECT_THAT(got.headers.at("Message-ID"), HasSubstr("@example.test>"));
    EXPECT_THAT(got.headers.at("Date"), ::testing::MatchesRegex("[A-Z][a-z]+, [0-9]+ [A-Z].+ [+-][0-9]+"));
    EXPECT_THAT(got.body, HasSubstr("\n.dot\n\n.\nMüller xxx"));
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
    const std::string password = "p\"a:ss wörd";
    const test::SmtpServer server(test::SmtpServer::Account{"tallix", password});
    const test::SmtpServer open;
    const int port = server.Port();
    const std::pair<MailServer, bool> cases[] = {
        {{"127.0.0.1", port, false, "", "", false}, false},
        {{"127.0.0.1", port, false, "tallix", password, false}, false},
        {{"127.0.0.1", port, true, "tallix", password, false}, true},
        {{"127.0.0.1", port, true, "tallix", password, true}, true},
        {{"127.0.0.1", port, true, "tallix", "wrong", true}, false},
        {{"127.0.0.1", open.Port(), true, "", "wrong", true}, true}};
    for (const auto& [account, sent] : cases) EXPECT_EQ(SendMail(kMail, account), sent) << account.password;
    ASSERT_EQ(server.Mails().size(), 2U);
    EXPECT_EQ(server.Mails()[0].user, "tallix");
}

TEST(MailSystem, ServersThatDoNotAnswerEndTheSendInTime) {
    MailServer address{"127.0.0.1", 0, true, "", "", false};
    const auto start = steady_clock::now();
    for (const auto& [manner, limit] : {std::pair("--silent", 600ms), {"--hang-up", 30'000ms}}) {
        const test::SmtpServer server(manner);
        address.port = server.Port();
        EXPECT_FALSE(SendMail(kMail, address, limit)) << manner;
    }
    EXPECT_FALSE(SendMail(kMail, address));  // no server listens there now
    for (const char* host : {"", "no such host", "mail.example.test/path", "a\r\nb"}) {
        EXPECT_FALSE(SendMail(kMail, {host, 25, true, "", "", false})) << host;
    }
    EXPECT_LT(steady_clock::now() - start, 10s);
}

TEST(MailSystem, TheTestMailGoesToTheFirstSiteAndReportsSuccessEvenWhenItFails) {
    test::TestApplication world;
    const test::SmtpServer server({{"ann", "secret"}});
    TestMailInput input = {.from = "reports@example.test",
                           .server = "127.0.0.1",
                           .port = std::to_string(server.Port()),
                           .user = "ann",
                           .password = "secret",
                           .ssl = true};
    const auto send = [&](TestAttachment attachment = TestAttachment::None) {
        return SendTestMail(world.application, input, attachment).text;
    };
    EXPECT_EQ(send(), "No default site has been configured, test email failed!");
    world.Insert("tblsite", {{"Email", "manager@example.test"}});
    EXPECT_EQ(send(TestAttachment::Logo), "Test Email Sent!") << "without a logo";
    std::ofstream(world.application.folder / "Company Docs" / "Logo.jpg") << "picture";
    send(TestAttachment::Logo);
    send();
    input.authenticate = false;  // refused
    EXPECT_EQ(send(), "Test Email Sent!");
    input.port = "no port";
    EXPECT_EQ(send(), "Test Email Sent!");

    const auto mails = server.Mails();
    ASSERT_EQ(mails.size(), 3U);
    EXPECT_EQ(mails[0].to + mails[0].user, "manager@example.testann");
    EXPECT_TRUE(mails[0].attachments.empty() && mails[2].attachments.empty());
    EXPECT_THAT(mails[1].attachments, ElementsAre(Pair("Logo.jpg", "picture")));
}

}  // namespace
}  // namespace tallix
