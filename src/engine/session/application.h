// What every action of the program works with: where files are, the settings, the
// person, the clock, the events, and the session. Made once in main.
#pragma once

#include <filesystem>
#include <string>

#include "host/clock.h"
#include "host/event_queue.h"
#include "host/prompts.h"
#include "session/session.h"
#include "settings/settings_store.h"

namespace tallix {

struct Version {
    int major = 0;
    int minor = 0;
    int revision = 0;

    /// The three numbers joined by ".".
    std::string Text() const;
};

/// The version of this build.
Version ProgramVersion();

struct Application {
    std::filesystem::path folder;      ///< holds Reports, Company Docs and the program
    std::filesystem::path tempFolder;  ///< holds the working files of the latest run
    Version version;
    SettingsStore& settings;
    Prompts& prompts;
    Clock& clock;
    EventQueue& events;
    Session session{};
};

}  // namespace tallix
