// The database engines that can be run here, for tests that must hold on every one. The
// servers start with the first engine that needs them, once a process, and stop when the
// process ends, however it ends. Every engine has one database, which its tests share one
// after the other.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "support/test_application.h"

namespace tallix::test {

/// The engines that a session can be opened on; "odbc" is reached by its connection text
/// alone (PostgreSQL through its own ODBC driver).
inline constexpr std::array kSessionEngines{"sqlite", "mariadb", "postgres"};
inline constexpr std::array kAllEngines{"sqlite", "mariadb", "postgres", "odbc"};

struct TestEngine {
    std::string name;
    std::string dbType;   ///< empty for "odbc"
    std::string address;  ///< what DBIP holds
    std::string user;
    std::string password;
    std::string connectionText;

    DatabaseAddress Database() const { return {DatabaseKindOf(dbType), address, user, password}; }
};

/// Throws std::runtime_error when the servers do not start.
const TestEngine& EngineNamed(std::string_view name);

/// An open connection to the engine's database, emptied: every table, no rows, keys given
/// from 1 on.
std::unique_ptr<ado::Connection> FreshDatabase(const TestEngine& engine);

/// One more connection to it, as it is.
std::unique_ptr<ado::Connection> Connect(const TestEngine& engine);

/// The base of the tests that must hold on every engine: such a database and an application.
class EngineTest : public testing::TestWithParam<const char*> {
protected:
    const TestEngine& engine_ = EngineNamed(GetParam());
    const std::unique_ptr<ado::Connection> connection_ = FreshDatabase(engine_);
    TestApplication test_{engine_.Database()};
    Session& session_ = test_.application.session;
};

}  // namespace tallix::test
