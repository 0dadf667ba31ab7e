// What the administration windows store is the same on every server.
#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>

#include "administration/accounts.h"
#include "administration/address_book.h"
#include "administration/extension_groups.h"
#include "administration/extensions.h"
#include "administration/mappings.h"
#include "administration/sites.h"
#include "administration/user_groups.h"
#include "database/database_scope.h"
#include "failures/errors.h"
#include "session/access_log.h"
#include "session/login.h"
#include "support/test_servers.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const AccessRights kAll = AccessRights::All();
const std::string kDesk = "O'Neil's \\ 50%";
constexpr char kHouse[] = "O'Brien's \"North\" 100% \\ House";

class Administration : public test::EngineTest {
protected:
    /// Sorted, because an update moves a row on PostgreSQL.
    template <typename Record>
    static std::vector<std::string> Each(const std::vector<Record>& records, std::string Record::*value) {
        std::vector<std::string> texts;
        for (const Record& record : records) texts.push_back(record.*value);
        std::sort(texts.begin(), texts.end());
        return texts;
    }
    std::vector<std::string> UserNames() { return Each(LoadAccounts(session_), &Account::userName); }
    std::vector<std::string> OfSites(std::string SiteRecord::*value) {
        return Each(ReadSites(session_), value);
    }
    bool CanLogIn(const std::string& name, const std::string& password) {
        Login login(test_.application);
        const LoginOutcome outcome = login.Try(name, password);
        login.Close();
        return outcome == LoginOutcome::LoggedIn;
    }
    void Store(const std::vector<Extension>& extensions) {
        StoreExtensions(DatabaseScope(session_.database), extensions);
    }
    void Import(const std::string& bytes) {
        const std::filesystem::path file = test_.Folder() / "numbers.csv";
        std::ofstream(file, std::ios::binary) << bytes;
        ImportAddressBook(session_, file);
    }
    bool Save(const std::string& mappingName, const std::string& firstStart) {
        Mapping mapping{mappingName, {}};
        for (std::size_t i = 0; i < mapping.items.size(); ++i)
            mapping.items.at(i) = {std::to_string(100 + i), std::to_string(200 + i)};
        mapping.items.front().start = firstStart;
        return SaveMapping(test_.application, mapping);
    }
    std::string FirstStart(const std::string& mappingName) {
        return ReadMapping(session_, mappingName).value().items.front().start;
    }
    void AddSites(std::initializer_list<const char*> names) {
        for (const char* name : names) {
            SiteRecord site;
            site.name = name;
            AddSite(session_, site, ReadSites(session_).size());
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Engines, Administration, testing::ValuesIn(test::kSessionEngines));

TEST_P(Administration, AccountsAreAddedChangedAndDeleted) {
    const std::string password = "P\"a's;s€";
    EXPECT_TRUE(AddAccount(test_.application, {"jOHN", password, "j@x", "", kAll}));
    EXPECT_TRUE(CanLogIn("john", password));
    EXPECT_FALSE(CanLogIn("john", "p\"a's;s€"));
    EXPECT_EQ(session_.CurrentAccess, AccessOfNewAccount());
    EXPECT_FALSE(AddAccount(test_.application, {"John", "x", "j@x", "", kAll}));
    EXPECT_TRUE(AddAccount(test_.application, {"jOHN", "x", "j@x", "", kAll})) << "a second John";
    EXPECT_THAT(UserNames(), ElementsAre("John", "John"));

    EXPECT_TRUE(AddUserGroup(session_, kDesk, kAll));
    EXPECT_TRUE(AddAccount(test_.application, {"O'neill", "1", "@", kDesk, {}}));
    Account oneill = ReadAccount(session_, "O'neill");
    EXPECT_EQ(oneill.group + oneill.email + oneill.password, kDesk + "@1");
    oneill.password = "2";
    oneill.group = "";
    oneill.access = {AccessRight::PresetReports};
    EditAccount(test_.application, oneill);
    EXPECT_TRUE(CanLogIn(oneill.userName, "2"));
    EXPECT_EQ(session_.CurrentAccess, oneill.access);
    StoreAccess(session_, oneill.userName, kAll);
    EXPECT_EQ(ReadAccount(session_, oneill.userName).access, kAll);

    const std::string breaksOut = "x\"); DELETE FROM tblusers; --";
    EXPECT_THROW(AddAccount(test_.application, {breaksOut, "1", "@", "", {}}), DatabaseError);
    EXPECT_TRUE(DeleteAccount(test_.application, "John"));
    EXPECT_THAT(UserNames(), ElementsAre(oneill.userName));
}

TEST_P(Administration, TheAdministratorIsProtectedAndAttemptsAreLogged) {
    AddAccount(test_.application, {"administrator", "x", "a@x", "", {}});
    EditAccount(test_.application, {"administrator", "y", "b@x", "none", kAll});
    const Account kept = ReadAccount(session_, "Administrator");
    EXPECT_EQ(kept.password + kept.email, "yb@x");
    EXPECT_EQ(kept.access, AccessOfNewAccount());
    EXPECT_FALSE(DeleteAccount(test_.application, "Administrator"));
    EXPECT_FALSE(AddAccount(test_.application, {"Administrator", "x", "a@x", "", {}}));
    EXPECT_THAT(UserNames(), ElementsAre("Administrator"));
    EXPECT_EQ(test_.Rows("SELECT Data FROM tbllogging"),
              "User Account Created - administrator|\nUser Account Modified - administrator|\n"
              "User Account Deleted - Administrator|\nUser Account Created - Administrator|\n");
}

TEST_P(Administration, DeletingAUserGroupLeavesItsMembersTheirOwnRights) {
    AddUserGroup(session_, kDesk, {});
    AddUserGroup(session_, "Back", {});
    EXPECT_FALSE(AddUserGroup(session_, kDesk, kAll));
    EXPECT_FALSE(EditUserGroup(session_, "Front", kAll));
    EXPECT_TRUE(EditUserGroup(session_, kDesk, kAll));
    AddAccount(test_.application, {"ann", "x", "a@x", kDesk, {}});
    AddAccount(test_.application, {"bob", "x", "b@x", "Back", {}});
    EXPECT_TRUE(CanLogIn("ann", "x"));
    EXPECT_EQ(session_.CurrentAccess, kAll);
    DeleteUserGroup(session_, kDesk);
    EXPECT_THROW(DeleteUserGroup(session_, "x' OR \"x\"=\"x"), DatabaseError);
    EXPECT_THAT(LoadUserGroups(session_), ElementsAre("Back"));
    EXPECT_TRUE(CanLogIn("ann", "x"));
    EXPECT_EQ(session_.CurrentAccess, AccessOfNewAccount());
    EXPECT_EQ(ReadAccount(session_, "Bob").group, "Back");
}

TEST_P(Administration, CallsGiveTheNumbersThatTheListLacks) {
    for (const char* number : {"201", "T123", "t123", "  ", "", "202", "201", " T9"}) {
        test_.InsertCall({{"Extension", number}});
    }
    NoProgress nobody;
    std::vector<Extension> list = {{"202", "Ann"}};
    const std::vector<Extension> found = FindNewExtensions(test_.application, list, nobody);
    EXPECT_THAT(found, ElementsAre(Extension{"201", ""}, Extension{"t123", ""}, Extension{" T9", ""}));
    list.insert(list.end(), found.begin(), found.end());
    EXPECT_THAT(FindNewExtensions(test_.application, list, nobody), IsEmpty());
    Store(list);
    EXPECT_THAT(LoadExtensions(session_), testing::UnorderedElementsAreArray(list));
}

TEST_P(Administration, ARefusedExtensionOrLineEndsTheStoreAndKeepsThoseBeforeIt) {
    const Extension ann{"201", "Ann \"O'Neil\""};
    EXPECT_THROW(Store({ann, {"201", "Bob"}, {"202", "Cid"}}), DatabaseError);
    EXPECT_THAT(LoadExtensions(session_), ElementsAre(ann));

    connection_->Execute("CREATE UNIQUE INDEX OnlyOnce ON tbladdressbook (Number)");
    EXPECT_THROW(Import("1,One\n2,Two\n1,Again\n3,Three\n"), DatabaseError);
    connection_->Execute(engine_.name == "mariadb" ? "DROP INDEX OnlyOnce ON tbladdressbook"
                                                   : "DROP INDEX OnlyOnce");
    EXPECT_THAT(LoadAddressBook(session_), ElementsAre(KnownNumber{"One", "1"}, KnownNumber{"Two", "2"}));
}

TEST_P(Administration, DeletingAnExtensionGroupRemovesTheMembersOfTheOneAbove) {
    for (const char* name : {"Sales", "Stores", "Works"}) AddExtensionGroup(session_, name);
    for (const int line : {1, 2, 3}) AddGroupMember(session_, line, "20" + std::to_string(line));
    for (const int line : {1, 3}) AddGroupMember(session_, line, "299");
    DeleteGroupMember(session_, "299");
    DeleteExtensionGroup(session_, "Works", 3);
    EXPECT_THAT(LoadExtensionGroups(session_), ElementsAre("Sales", "Stores"));
    EXPECT_THAT(LoadGroupMembers(session_, 1), ElementsAre("201"));
    EXPECT_THAT(LoadGroupMembers(session_, 2), IsEmpty());
    EXPECT_THAT(LoadGroupMembers(session_, 3), ElementsAre("203"));
    EXPECT_EQ(test_.Rows("select GroupID from tblgroupmap where Extension = '203'"), "4|\n");
}

TEST_P(Administration, NumbersAreAddedOnceRenamedDeletedAndImported) {
    EXPECT_TRUE(AddKnownNumber(session_, {"Ann", "2001"}));
    EXPECT_FALSE(AddKnownNumber(session_, {"Bob", "2001"}));
    EXPECT_TRUE(RenameKnownNumber(session_, {"Cid", "2001"}));
    EXPECT_FALSE(RenameKnownNumber(session_, {"Dan", "2002"}));
    EXPECT_THAT(LoadAddressBook(session_), ElementsAre(KnownNumber{"Cid", "2001"}));
    DeleteKnownNumber(session_, "2002");
    DeleteKnownNumber(session_, "2001");
    Import("");
    EXPECT_THAT(LoadAddressBook(session_), IsEmpty());

    Import("2001,Front Desk, Reception\r\n\n,Nobody\n2001,\"Caf\xE9\"\nNo comma\n2002,Zo\xC3\xAB");
    EXPECT_THAT(LoadAddressBook(session_),
                UnorderedElementsAre(KnownNumber{"Front Desk, Reception", "2001"}, KnownNumber{"", ""},
                                     KnownNumber{"Nobody", ""}, KnownNumber{"\"Caf\xC3\xA9\"", "2001"},
                                     KnownNumber{"o comma", ""}, KnownNumber{"Zo\xC3\xAB", "2002"}));
    EXPECT_THROW(ImportAddressBook(session_, test_.Folder() / "absent.csv"), std::runtime_error);
}

TEST_P(Administration, MappingsAreAddedStoredOverAndDeletedByTheirNames) {
    constexpr char kHall[] = "Hall 100% \\ O'Brien";
    EXPECT_TRUE(Save(kHall, "1"));
    EXPECT_TRUE(Save("Hall", "2"));
    EXPECT_TRUE(Save("Hall", "3"));
    EXPECT_EQ(FirstStart(kHall), "1");
    EXPECT_EQ(FirstStart("Hall"), "3");
    EXPECT_EQ(ReadMapping(session_, "Hall").value().items.back(), (Positions{"114", "214"}));
    EXPECT_EQ(ReadAccessLog(session_).front().back(), "Saved Custom Mappings");
    DeleteMapping(session_, kHall);
    EXPECT_THAT(ReadMappingNames(session_), ElementsAre("Hall"));

    for (const char* name : {"a \"quoted\" name", "\"", "x\" OR \"1\" = \"1", "%"}) {
        Save(name, "7");
        EXPECT_EQ(FirstStart("Hall"), "3") << name;
        DeleteMapping(session_, name);
        EXPECT_EQ(FirstStart("Hall"), "3") << name;
    }
    EXPECT_FALSE(Save("", "1"));
    EXPECT_THAT(test_.prompts.messages, IsEmpty());
    EXPECT_FALSE(Save("Hall", ""));
    EXPECT_EQ(test_.prompts.messages.back().title, "Value Mappings");
    EXPECT_EQ(FirstStart("Hall"), "3");
}

TEST_P(Administration, SampleLinesStepThroughASite) {
    for (const auto& [line, site] : {std::pair("one", "001"), {"other", "002"}, {"it's \"two\"", "001"}})
        test_.Insert("tblrawdata", {{"Data", line}, {"SiteID", site}});
    SampleLines lines(test_.application);
    EXPECT_EQ(lines.First(""), std::nullopt);
    EXPECT_EQ(test_.prompts.messages.back().title, "Tallix Reports");
    EXPECT_EQ(lines.First("001"), "one");
    std::vector<std::string> shown;
    using enum Direction;
    for (const Direction step : {Back, Back, Forward, Forward, Forward, Forward, Back}) {
        shown.push_back(*lines.Step("001", step));
    }
    const std::string none = "NO DATA AVAILABLE!";
    EXPECT_THAT(shown, ElementsAre(none, none, "one", "it's \"two\"", none, none, "it's \"two\""));
    EXPECT_EQ(lines.Step("002", Forward), "other");
}

TEST_P(Administration, ASiteKeepsAllFieldsThatAreEdited) {
    AddSites({"Head", kHouse, "West"});
    SiteRecord site = ReadSites(session_).at(1);
    EXPECT_EQ(site.name, kHouse);
    int number = 0;
    for (auto value :
         {&SiteRecord::name, &SiteRecord::email, &SiteRecord::address1, &SiteRecord::address2,
          &SiteRecord::address3, &SiteRecord::address4, &SiteRecord::postcode, &SiteRecord::area,
          &SiteRecord::voicemail, &SiteRecord::switchIp, &SiteRecord::switchPort, &SiteRecord::switchMapping,
          &SiteRecord::systemCode, &SiteRecord::thirdPartyDatabase, &SiteRecord::thirdPartyUser,
          &SiteRecord::thirdPartyPassword, &SiteRecord::thirdPartyName})
        site.*value = "it's \"" + std::to_string(++number);
    UpdateSite(session_, site);
    EXPECT_THAT(OfSites(&SiteRecord::name), ElementsAre("Head", "West", "it's \"1"));
    EXPECT_THAT(OfSites(&SiteRecord::thirdPartyName), ElementsAre("", "", "it's \"17"));
    EXPECT_THAT(OfSites(&SiteRecord::id), ElementsAre("1", "2", "3"));

    site.id = "2\" OR \"1\" = \"1";
    site.name = "Everything";
    UpdateSite(session_, site);
    EXPECT_THAT(OfSites(&SiteRecord::name), ElementsAre("Head", "West", "it's \"1"));
}

TEST_P(Administration, SitesKeepTheirNumbersWhenOneIsDeleted) {
    AddSites({"Head", kHouse, "West"});
    SiteRecord site = ReadSites(session_).at(1);
    DeleteSite(test_.application, site);
    EXPECT_THAT(OfSites(&SiteRecord::id), ElementsAre("1", "2", "3"));
    for (const char* id : {"2", "ID", "1 OR 1 = 1", ""}) {
        site.id = id;
        test_.prompts.answers = {Answer::Yes};
        DeleteSite(test_.application, site);
        EXPECT_THAT(OfSites(&SiteRecord::id), ElementsAre("1", "3")) << id;
    }
    AddSites({"Refused, for 3 is taken"});
    EXPECT_THAT(OfSites(&SiteRecord::name), ElementsAre("Head", "West"));
}

}  // namespace
}  // namespace tallix
