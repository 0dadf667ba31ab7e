#include "reporting/key_lookup.h"

#include <gtest/gtest.h>

#include "session/database.h"
#include "support/test_application.h"

namespace tallix {
namespace {

TEST(KeyLookup, ABareKeyIsComparedAsANumberByTheServerAndInMemory) {
    test::TestApplication test;
    test.Insert("tblextensions", {{"ExtensionNo", "201"}, {"Name", "Ann"}});
    test.Insert("tblextensions", {{"ExtensionNo", "Reception"}, {"Name", "Ben"}});
    OpenDatabase(test.application.session);
    const KeyLookupNames names = {"tblextensions",
                                  "SELECT * FROM tblextensions WHERE ExtensionNo = ", "ExtensionNo", "Name"};
    KeyLookupNames bare = names;
    bare.form = KeyForm::Bare;
    KeyLookup quotedNames(test.application.session, test.events, names);
    KeyLookup bareNames(test.application.session, test.events, bare);
    const auto askMany = [](KeyLookup& lookup) {
        for (int key = 1000; key < 1100; ++key) EXPECT_FALSE(lookup.Find(std::to_string(key)));
        for (const char* key : {"201", "0201", "201 ", "2.01e2"}) EXPECT_EQ(lookup.Find(key), "Ann") << key;
    };
    askMany(bareNames);
    for (const char* key : {"Reception", "", "ExtensionNo", "1 OR 1=1", "+"}) {
        EXPECT_FALSE(bareNames.Find(key)) << key;
    }
    EXPECT_FALSE(quotedNames.Find("0201"));
    EXPECT_EQ(quotedNames.Find("Reception"), "Ben");

    OpenConnection(test.application.session)
        .Execute("UPDATE tblextensions SET ExtensionNo = \"0201\" WHERE Name = \"Ben\"");
    KeyLookup inMemory(test.application.session, test.events, bare);
    askMany(inMemory);
    OpenConnection(test.application.session).Execute("DELETE FROM tblextensions");
    EXPECT_EQ(inMemory.Find("000201"), "Ann") << "the server is asked no more";
    EXPECT_FALSE(inMemory.Find("0000000201")) << "too long to be known, and asked of the server";
}

}  // namespace
}  // namespace tallix
