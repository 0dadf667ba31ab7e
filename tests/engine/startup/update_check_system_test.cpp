#include <gmock/gmock.h>

#include "compat/ini_file.h"
#include "failures/errors.h"
#include "platform/http_get.h"
#include "startup/update_check.h"
#include "support/loopback_servers.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using namespace std::chrono_literals;

constexpr char kManifest[] = "TALLIX_UP.ini";

/// A port on which nobody listens: that of a server that has stopped.
std::string DeadPort() {
    return std::to_string(test::HttpServer().Port());
}

class UpdateCheckTest : public testing::Test {
protected:
    UpdateCheckTest() { SetManifestAddress(maker_.Address(kManifest)); }

    void SetManifestAddress(const std::string& address) const {
        WriteIniKey("Web", "Manifest", address, test_.application.folder / "Site.ini");
    }

    void UseProxy(const std::string& address, const std::string& port) const {
        test_.settings.Write("UseProxy", "1");
        test_.settings.Write("ProxyIP", address);
        test_.settings.Write("ProxyPort", port);
    }

    /// Reports a newer version, or says in the right words that there is none.
    bool FindsNewer() const {
        const UpdateNotice notice = CheckForUpdate(test_.application);
        EXPECT_EQ(notice.text, notice.newer ? "A newer version of Tallix is available! Click here to get it."
                                            : "Your version of Tallix is up to date!");
        return notice.newer;
    }

    test::TestApplication test_;  // version 1.4.6
    const std::filesystem::path copy_ = test_.application.folder / "Temp.dat";
    test::HttpServer maker_;
};

TEST_F(UpdateCheckTest, ReadsANewerVersionFromTheFirstLine) {
    maker_.Publish(kManifest, "2.0.0\r\nsecond line\r\n");
    EXPECT_TRUE(FindsNewer());
    EXPECT_EQ(maker_.Requests(), "GET /TALLIX_UP.ini HTTP/1.1\n");
    EXPECT_FALSE(std::filesystem::exists(copy_));
    maker_.Publish(kManifest, "1.3.6");
    EXPECT_FALSE(FindsNewer());
}

TEST_F(UpdateCheckTest, NoUpdatesMakesNoRequest) {
    maker_.Publish(kManifest, "2.0.0");
    test_.settings.Write("NoUpdates", "1");
    EXPECT_FALSE(CheckForUpdate(test_.application).newer);
    EXPECT_EQ(maker_.Requests(), "");
    EXPECT_TRUE(CheckForUpdate(test_.application, NoUpdatesSetting::Ignored).newer);
}

TEST_F(UpdateCheckTest, GoesThroughACompleteProxyAlone) {
    const test::HttpServer proxy;
    maker_.Publish(kManifest, "2.0.0");
    setenv("http_proxy", ("http://127.0.0.1:" + DeadPort()).c_str(), 1);
    const std::string port = std::to_string(proxy.Port());
    UseProxy("127.0.0.1", "");
    EXPECT_TRUE(FindsNewer());
    UseProxy("", port);
    EXPECT_TRUE(FindsNewer());
    EXPECT_EQ(proxy.Requests(), "");
    UseProxy("127.0.0.1", port);
    EXPECT_TRUE(FindsNewer());
    EXPECT_THAT(proxy.Requests(), testing::StartsWith("GET http://127.0.0.1:"));
    UseProxy("127.0.0.1", DeadPort());
    EXPECT_FALSE(FindsNewer());
    unsetenv("http_proxy");
}

TEST_F(UpdateCheckTest, LooksUpToDateWhateverFails) {
    maker_.Publish("empty", "");
    maker_.Publish("page", "<html>2.0.0</html>");
    for (const std::string& address : std::vector<std::string>{
             maker_.Address("absent"), maker_.Address("empty"), maker_.Address("page"),
             "HTTP://127.0.0.1:" + DeadPort() + "/", "HTTP://", "no.such.host.invalid", "file:///dev/null"}) {
        SetManifestAddress(address);
        EXPECT_FALSE(FindsNewer()) << address;
    }
    maker_.Publish(kManifest, "2.0.0");
    SetManifestAddress(maker_.Address(kManifest));
    EXPECT_TRUE(std::filesystem::remove(copy_)) << "left by the unreadable page";
    std::filesystem::create_directory(copy_);
    EXPECT_FALSE(FindsNewer());
}

TEST(HttpGet, FollowsRedirectionsAndKeepsItsLimits) {
    const test::HttpServer server;
    const std::string bytes = std::string("a\0b\r\n\xFF", 6);
    server.Publish("file", bytes);
    EXPECT_EQ(HttpGet({server.Address("moved/file"), ""}), bytes);
    EXPECT_EQ(HttpGet({server.Address("file"), "", 5s, bytes.size()}), bytes);
    EXPECT_EQ(HttpGet({server.Address("file"), "", 5s, bytes.size() - 1}), std::nullopt);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(HttpGet({server.Address("stalled"), "", 200ms}), std::nullopt);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
}

constexpr Version kOwn{1, 4, 6};

TEST(NamesNewerVersion, ComparesThreeNumbersAsTheyAreCutOut) {
    for (const auto& [line, newer] : {std::pair("1.3.6", false),  // minor 3.6 rounds to 4
                                      {"1.4.5", false},           // minor 4.5 rounds to even
                                      {"1.4.6", true},            // minor 4.6 rounds to 5
                                      {"1.3.7", true},            // by its revision alone
                                      {"1.0.12", true},           // a revision of two digits
                                      {"1.0.123456", true},       // cut to four
                                      {"2.0.0", true},            // by its major number
                                      {"1.5.0", true},            // by its minor number
                                      {"0.9.9", false},           // nothing is compared
                                      {"1.10.0", true},           // minor 10, revision .0
                                      {"1.10.9", true},           // revision .9 rounds to 1
                                      {"1.3.6 ", false}}) {
        EXPECT_EQ(NamesNewerVersion(line, kOwn), newer) << line;
    }
    for (const char* line : {"", "2", "2.0", "2.0.", "12.4.6", "1.4.6.1", "2.x.1", "<html>", "\uFEFF2.0.0"})
        EXPECT_THROW(NamesNewerVersion(line, kOwn), ConversionError) << line;
}

TEST(MakerSite, ComesFromTheSiteFileWithTheSchemeInUpperCase) {
    const test::TempFolder folder;
    EXPECT_EQ(MakerSite(folder.Path()), "HTTP://www.quillmere.invalid/");
    for (const auto& [stored, address] : {std::pair("example.org/tallix", "HTTP://example.org/tallix"),
                                          {"http://example.org", "HTTP://example.org"},
                                          {"https://example.org", "https://example.org"}}) {
        WriteIniKey("Web", "Site", stored, folder.Path() / "Site.ini");
        EXPECT_EQ(MakerSite(folder.Path()), address);
    }
}

}  // namespace
}  // namespace tallix
