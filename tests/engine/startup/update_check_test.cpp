#include "startup/update_check.h"

#include <gtest/gtest.h>

#include <vector>

#include "failures/errors.h"
#include "support/temp_folder.h"

namespace tallix {
namespace {

constexpr Version kOwn{1, 4, 6};

TEST(NamesNewerVersion, ComparesTheNumbersAsTheyAreCutOut) {
    struct Case {
        const char* line;
        bool newer;
    };
    for (const Case& each : std::vector<Case>{{"1.3.6", false},      // minor 3.6 rounds to 4
                                              {"1.4.5", false},      // minor 4.5 rounds to even
                                              {"1.4.6", true},       // minor 4.6 rounds to 5
                                              {"1.3.7", true},       // by its revision alone
                                              {"1.0.12", true},      // a revision of two digits
                                              {"1.0.123456", true},  // cut to four
                                              {"2.0.0", true},       // by its major number
                                              {"1.5.0", true},       // by its minor number
                                              {"0.9.9", false},      // nothing is compared
                                              {"1.10.0", true},      // minor 10, revision .0
                                              {"1.10.9", true},      // revision .9 rounds to 1
                                              {"1.3.6 ", false}}) {
        EXPECT_EQ(NamesNewerVersion(each.line, kOwn), each.newer) << each.line;
    }
}

TEST(NamesNewerVersion, RefusesWhatHasNotThreeNumbers) {
    for (const char* line : {"", "2", "2.0", "2.0.", "12.4.6", "1.4.6.1", "2.x.1", "<html>",
                             "\xEF\xBB\xBF"
                             "2.0.0"}) {
        EXPECT_THROW(NamesNewerVersion(line, kOwn), ConversionError) << line;
    }
}

TEST(MakerSite, ComesFromTheSiteFileWithTheSchemeInUpperCase) {
    const test::TempFolder folder;
    EXPECT_EQ(MakerSite(folder.Path()), "HTTP://www.quillmere.invalid/");
    struct Case {
        const char* stored;
        const char* address;
    };
    for (const Case& each : {Case{"example.org/tallix", "HTTP://example.org/tallix"},
                             Case{"http://example.org", "HTTP://example.org"},
                             Case{"https://example.org", "https://example.org"}}) {
        folder.Write("Site.ini", std::string("[Web]\r\nSite=") + each.stored + "\r\n");
        EXPECT_EQ(MakerSite(folder.Path()), each.address);
    }
}

}  // namespace
}  // namespace tallix
