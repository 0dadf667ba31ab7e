#include "foundation/ado/connection_text.h"

#include <gtest/gtest.h>

#include "foundation/errors.h"

namespace tallix::ado {
namespace {

TEST(ReadConnectionText, ReadsTheThreeDialects) {
    const ConnectionParts parts = ReadConnectionText(
        "DRIVER={MySQL ODBC 5.1 Driver};SERVER=db:3307;DATABASE=TALLIX;UID=u;PWD=p=q;OPTION=165932");
    EXPECT_EQ(parts.server, Server::MySql);
    EXPECT_EQ(parts.host, "db");
    EXPECT_EQ(parts.port, 3307);
    EXPECT_EQ(parts.database, "TALLIX");
    EXPECT_EQ(parts.user, "u");
    EXPECT_EQ(parts.password, "p=q");
    EXPECT_EQ(ReadConnectionText("DRIVER={PostgreSQL ANSI};SERVER=db;UID=;PWD=").server, Server::Postgres);
    EXPECT_EQ(ReadConnectionText("PROVIDER=SQLNCLI.1;SERVER=db;UID=;PWD=").server, Server::SqlServer);
}

TEST(ReadConnectionText, ReadsAddresses) {
    struct Case {
        const char* address;
        const char* host;
        int port;
    };
    for (const Case& c : {Case{"10.0.0.5", "10.0.0.5", 0}, Case{"db:x", "db:x", 0}, Case{"::1", "::1", 0},
                          Case{"[::1]:5433", "::1", 5433}, Case{"[::1]", "::1", 0},
                          Case{"db:70000", "db:70000", 0}, Case{"", "", 0}}) {
        const auto parts =
            ReadConnectionText("DRIVER={PostgreSQL ANSI};SERVER=" + std::string(c.address) + ";UID=u");
        EXPECT_EQ(parts.host, c.host);
        EXPECT_EQ(parts.port, c.port);
        EXPECT_EQ(parts.user, "u");
    }
    const auto embedded =
        ReadConnectionText("DRIVER={MySQL ODBC 5.1 Driver};SERVER=sqlite:/a b/t.db;DATABASE=TALLIX");
    EXPECT_EQ(embedded.server, Server::Sqlite);
    EXPECT_EQ(embedded.file, "/a b/t.db");
    EXPECT_EQ(embedded.driver, "");
    EXPECT_EQ(ReadConnectionText("DRIVER={Other};SERVER=db").driver, "Other");
}

TEST(ReadConnectionText, RefusesTextsThatNameNoKnownServer) {
    for (const char* text : {"", "SERVER=db", "PROVIDER=Other;SERVER=db", "DRIVER={", "=;;="}) {
        EXPECT_THROW(ReadConnectionText(text), DatabaseError) << text;
    }
}

}  // namespace
}  // namespace tallix::ado
