// The company and its calls that the measurements run over, on one engine, and an
// application that works on them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "database/connection_text.h"
#include "session/application.h"
#include "toolkit/qt_events.h"

namespace tallix::bench {

struct EngineAddress {
    std::string name;
    std::string dbType;
    std::string address;
    std::string user;
    std::string password;
};

/// Agrees to whatever it is asked.
class AgreeingPrompts : public UnattendedPrompts {
public:
    Answer Show(const Message&) override { return Answer::Yes; }
};

class World {
public:
    /// Lays down tables, reference data and `calls` calls on the engine where it has none.
    World(const EngineAddress& engine, std::uint64_t calls, const std::filesystem::path& folder);

    Application application;

    ado::ConnectionParts Parts() const;

private:
    void Fill(std::uint64_t calls);

    AgreeingPrompts prompts_;
    SystemClock clock_;
    NoEvents events_;
    SettingsStore settings_;
};

}  // namespace tallix::bench
