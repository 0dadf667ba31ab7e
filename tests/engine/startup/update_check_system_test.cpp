#include <gmock/gmock.h>

#include <chrono>
#include <cstdlib>
#include <fstream>

#include "platform/http_get.h"
#include "startup/update_check.h"
#include "support/http_server.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;
using testing::IsEmpty;

constexpr std::string_view kUpToDate = "Your version of Tallix is up to date!";
constexpr char kManifest[] = "TALLIX_UP.ini";

/// A port on which nobody listens: that of a server that has stopped.
int DeadPort() {
    return test::HttpServer().Port();
}

class UpdateCheckTest : public testing::Test {
protected:
    UpdateCheckTest() { SetManifestAddress(maker_.Address(kManifest)); }

    void SetManifestAddress(const std::string& address) const {
        std::ofstream(test_.application.folder / "Site.ini") << "[Web]\r\nManifest=" << address << "\r\n";
    }

    void UseProxy(const std::string& address, const std::string& port) const {
        test_.settings.Write("UseProxy", "1");
        test_.settings.Write("ProxyIP", address);
        test_.settings.Write("ProxyPort", port);
    }

    UpdateNotice Check() const { return CheckForUpdate(test_.application); }

    std::filesystem::path Copy() const { return test_.application.folder / "Temp.dat"; }

    test::TestApplication test_;  // version 1.4.6
    test::HttpServer maker_;
};

TEST_F(UpdateCheckTest, ReadsANewerVersionFromTheFirstLine) {
    maker_.Publish(kManifest, "2.0.0\r\nsecond line\r\n");
    const UpdateNotice newer = Check();
    EXPECT_EQ(newer.text, "A newer version of Tallix is available! Click here to get it.");
    EXPECT_TRUE(newer.newer);
    EXPECT_EQ(maker_.Requests(), "GET /TALLIX_UP.ini HTTP/1.1\n");
    EXPECT_FALSE(std::filesystem::exists(Copy()));

    maker_.Publish(kManifest, "1.3.6");
    const UpdateNotice same = Check();
    EXPECT_EQ(same.text, kUpToDate);
    EXPECT_FALSE(same.newer);
}

TEST_F(UpdateCheckTest, NoUpdatesMakesNoRequest) {
    maker_.Publish(kManifest, "2.0.0");
    test_.settings.Write("NoUpdates", "1");
    Check();
    EXPECT_THAT(maker_.Requests(), IsEmpty());
    EXPECT_TRUE(CheckForUpdate(test_.application, NoUpdatesSetting::Ignored).newer);
}

TEST_F(UpdateCheckTest, GoesThroughACompleteProxyAlone) {
    const test::HttpServer proxy;
    maker_.Publish(kManifest, "2.0.0");
    setenv("http_proxy", ("http://127.0.0.1:" + std::to_string(DeadPort())).c_str(), 1);
    UseProxy("127.0.0.1", "");
    EXPECT_TRUE(Check().newer);
    UseProxy("", std::to_string(proxy.Port()));
    EXPECT_TRUE(Check().newer);
    EXPECT_THAT(proxy.Requests(), IsEmpty());

    UseProxy("127.0.0.1", std::to_string(proxy.Port()));
    EXPECT_TRUE(Check().newer);
    EXPECT_THAT(proxy.Requests(), testing::StartsWith("GET http://127.0.0.1:"));
    UseProxy("127.0.0.1", std::to_string(DeadPort()));
    EXPECT_FALSE(Check().newer);
    unsetenv("http_proxy");
}

TEST_F(UpdateCheckTest, LooksUpToDateWhateverFails) {
    maker_.Publish("empty", "");
    maker_.Publish("page", "<html>2.0.0</html>");
    const std::string deadServer = "HTTP://127.0.0.1:" + std::to_string(DeadPort()) + "/";
    for (const std::string& address :
         {maker_.Address("absent"), maker_.Address("empty"), maker_.Address("page"), deadServer,
          std::string("HTTP://"), std::string("no.such.host.invalid"), std::string("file:///dev/null")}) {
        SetManifestAddress(address);
        const UpdateNotice notice = Check();
        EXPECT_EQ(notice.text, kUpToDate) << address;
        EXPECT_FALSE(notice.newer) << address;
    }

    maker_.Publish(kManifest, "2.0.0");
    SetManifestAddress(maker_.Address(kManifest));
    EXPECT_TRUE(std::filesystem::remove(Copy())) << "left by the unreadable page";
    std::filesystem::create_directory(Copy());
    EXPECT_EQ(Check().text, kUpToDate);
}

TEST(HttpGet, FollowsRedirectionsAndKeepsItsLimits) {
    const test::HttpServer server;
    const std::string bytes = std::string("a\0b\r\n\xFF", 6);
    server.Publish("file", bytes);
    EXPECT_EQ(HttpGet({server.Address("moved/file"), ""}), bytes);
    EXPECT_EQ(HttpGet({server.Address("file"), "", milliseconds(5000), bytes.size()}), bytes);
    EXPECT_EQ(HttpGet({server.Address("file"), "", milliseconds(5000), bytes.size() - 1}), std::nullopt);

    const auto start = steady_clock::now();
    EXPECT_EQ(HttpGet({server.Address("stalled"), "", milliseconds(200)}), std::nullopt);
    EXPECT_LT(steady_clock::now() - start, milliseconds(5000));
}

}  // namespace
}  // namespace tallix
