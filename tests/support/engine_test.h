// The base of the tests that must hold on every engine: an emptied database and an
// application on it.
#pragma once

#include <gtest/gtest.h>

#include "support/test_application.h"
#include "support/test_servers.h"

namespace tallix::test {

class EngineTest : public testing::TestWithParam<const char*> {
protected:
    const TestEngine& engine_ = EngineNamed(GetParam());
    const std::unique_ptr<ado::Connection> connection_ = FreshDatabase(engine_);
    TestApplication test_{engine_.Database()};
    Session& session_ = test_.application.session;
};

}  // namespace tallix::test
