#include "reporting/key_lookup.h"

#include <gtest/gtest.h>

#include "database/database_scope.h"
#include "support/test_application.h"

namespace tallix {
namespace {

TEST(KeyLookup, ABareKeyIsComparedAsANumberByTheServerAndInMemory) {
    test::TestApplication test;
    test.Insert("tblextensions", {{"ExtensionNo", "201"}, {"Name", "Ann"}});
    test.Insert("tblextensions", {{"ExtensionNo", "Reception"}, {"Name", "Ben"}});
    const DatabaseScope database(test.application.session.database);
    const KeyLookupNames names = {"tblextensions",
                                  "SELECT * FROM tblextensions WHERE ExtensionNo = ", "ExtensionNo", "Name"};
    KeyLookupNames bare = names;
    bare.form = KeyForm::Bare;
    KeyLookup quotedNames(database, test.events, names);
    KeyLookup bareNames(database, test.events, bare);
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

    database.Execute("UPDATE tblextensions SET ExtensionNo = \"0201\" WHERE Name = \"Ben\"");
    KeyLookup inMemory(database, test.events, bare);
    askMany(inMemory);
    database.Execute("DELETE FROM tblextensions");
    EXPECT_EQ(inMemory.Find("000201"), "Ann") << "the server is not asked again";
    EXPECT_FALSE(inMemory.Find("0000000201")) << "too long for memory, so the server is asked";
}

}  // namespace
}  // namespace tallix
