#include "database/connection_text.h"

#include <gtest/gtest.h>

#include "failures/errors.h"

namespace tallix::ado {
namespace {

TEST(ReadConnectionText, ReadsDialectsAndAddresses) {
    struct Case {
        const char* address;
        const char* host;
        int port;
    };
    for (const Case& c : {Case{"db:3307", "db", 3307}, Case{"db:x", "db:x", 0}, Case{"::1", "::1", 0},
                          Case{"[::1]:5433", "::1", 5433}, Case{"[::1]", "::1", 0},
                          Case{"db:70000", "db:70000", 0}, Case{"", "", 0}}) {
        const ConnectionParts parts =
            ReadConnectionText("DRIVER={PostgreSQL ANSI};SERVER=" + std::string(c.address) +
                               ";DATABASE=TALLIX;UID=u;PWD=p=q;OPTION=165932");
        EXPECT_EQ(parts.server, Server::Postgres);
        EXPECT_EQ(parts.host, c.host);
        EXPECT_EQ(parts.port, c.port);
        EXPECT_EQ(parts.database + parts.user + parts.password, "TALLIXup=q");
    }
    const auto embedded =
        ReadConnectionText("DRIVER={MySQL ODBC 5.1 Driver};SERVER=sqlite:/a b/t.db;DATABASE=TALLIX");
    EXPECT_EQ(embedded.server, Server::Sqlite);
    EXPECT_EQ(embedded.file, "/a b/t.db");
    EXPECT_EQ(ReadConnectionText("DRIVER={Other};SERVER=db").driver, "Other");
    for (const char* text : {"", "SERVER=db", "PROVIDER=Other;SERVER=db", "DRIVER={", "=;;="}) {
        EXPECT_THROW(ReadConnectionText(text), DatabaseError) << text;
    }
}

}  // namespace
}  // namespace tallix::ado
