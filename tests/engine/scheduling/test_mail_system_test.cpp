#include "scheduling/test_mail.h"

#include <gmock/gmock.h>

#include "support/smtp_server.h"
#include "support/test_application.h"

namespace tallix {
namespace {

TEST(TestMailTest, GoesToTheFirstSiteAndReportsSuccessEvenWhenItFails) {
    test::TestApplication world;
    const test::SmtpServer server({{"ann", "secret"}});
    TestMailInput input;
    input.from = "reports@example.test";
    input.server = "127.0.0.1";
    input.port = std::to_string(server.Port());
    input.user = "ann";
    input.password = "secret";
    input.ssl = true;
    const auto send = [&](TestAttachment attachment) {
        return SendTestMail(world.application, input, attachment).text;
    };
    EXPECT_EQ(send(TestAttachment::None), "No default site has been configured, test email failed!");
    EXPECT_THAT(server.Mails(), testing::IsEmpty());

    world.Insert("tblsite", {{"Email", "manager@example.test"}});
    EXPECT_EQ(send(TestAttachment::Logo), "Test Email Sent!") << "without a logo";
    std::ofstream(world.application.folder / "Company Docs" / "Logo.jpg") << "picture";
    send(TestAttachment::Logo);
    send(TestAttachment::None);
    input.authenticate = false;  // refused
    EXPECT_EQ(send(TestAttachment::None), "Test Email Sent!");
    input.port = "no port";
    EXPECT_EQ(send(TestAttachment::None), "Test Email Sent!");

    const auto mails = server.Mails();
    ASSERT_EQ(mails.size(), 3U);
    EXPECT_EQ(mails[0].to, "manager@example.test");
    EXPECT_EQ(mails[0].user, "ann");
    EXPECT_THAT(mails[0].attachments, testing::IsEmpty());
    EXPECT_THAT(mails[1].attachments, testing::ElementsAre(testing::Pair("Logo.jpg", "picture")));
    EXPECT_THAT(mails[2].attachments, testing::IsEmpty());
}

}  // namespace
}  // namespace tallix
