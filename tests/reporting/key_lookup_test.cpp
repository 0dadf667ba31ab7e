#include "reporting/key_lookup.h"

#include <gtest/gtest.h>

#include "foundation/database.h"
#include "support/test_application.h"

namespace tallix {
namespace {

TEST(KeyLookup, ABareKeyIsComparedAsANumberAndNothingElseIsAsked) {
    test::TestApplication test;
    test.Insert("tblextensions", {{"ExtensionNo", "201"}, {"Name", "Ann"}});
    test.Insert("tblextensions", {{"ExtensionNo", "Reception"}, {"Name", "Ben"}});
    OpenDatabase(test.application.session);
    const KeyLookupNames names = {"tblextensions", "SELECT * FROM tblextensions WHERE ExtensionNo = ",
                                  "ExtensionNo", "Name"};
    KeyLookupNames bare = names;
    bare.form = KeyForm::Bare;
    KeyLookup quotedNames(test.application.session, test.events, names);
    KeyLookup bareNames(test.application.session, test.events, bare);
    for (int key = 1000; key < 1100; ++key) EXPECT_FALSE(bareNames.Find(std::to_string(key)));
    for (const char* key : {"201", "0201", "201 ", "2.01e2"}) EXPECT_EQ(bareNames.Find(key), "Ann") << key;
    for (const char* key : {"Reception", "", "ExtensionNo", "1 OR 1=1", "+"}) {
        EXPECT_FALSE(bareNames.Find(key)) << key;
    }
    EXPECT_FALSE(quotedNames.Find("0201"));
    EXPECT_EQ(quotedNames.Find("Reception"), "Ben");
}

}  // namespace
}  // namespace tallix
