// A whole application in a folder of its own: settings, working files, and an empty
// database with every table. The embedded engine unless a test names another.
//
//     TestApplication test;
//     test.Execute("INSERT INTO tblextensions(ExtensionNo, Name) VALUES ('201', 'Ann')");
//     ReportRun run(test.application, flags, progress);
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"
#include "session/application.h"
#include "support/fixed_clock.h"
#include "support/scripted_prompts.h"
#include "support/temp_folder.h"
#include "support/test_crontab.h"

namespace tallix::test {

std::unique_ptr<ado::Connection> ConnectTo(const std::string& connectionText);

/// All rows of a statement, one per line, "|" after every value, NULL by its name.
std::string AllRows(ado::Connection& connection, std::string_view statement);

/// The lines of a file without their CR LF.
std::vector<std::string> ReadLines(const std::filesystem::path& file);

/// Events that a test controls: they are served by another queue, or do what it says.
class TestEvents : public EventQueue {
public:
    void Serve() override {
        if (queue) queue->Serve();
        if (const auto act = onServe) act();  // which may set another
    }
    void ServeDuring(const std::function<void()>& work) override {
        if (queue) return queue->ServeDuring(work);
        work();
    }

    EventQueue* queue = nullptr;
    std::function<void()> onServe;
};

class TestApplication {
public:
    /// On an embedded database of its own, or on the one given.
    TestApplication();
    explicit TestApplication(const DatabaseAddress& address);

    /// Runs a statement on a connection of its own.
    void Execute(std::string_view statement);

    /// What AllRows gives on such a connection.
    std::string Rows(std::string_view statement) const;

    /// Adds a row; values go in as they are.
    using Row = std::map<std::string, std::string>;
    void Insert(const std::string& table, const Row& row);

    /// Adds a call: an outgoing one of 201 to 01632960123, but for what `changes` says.
    void InsertCall(const Row& changes = {});

    /// Writes a preset report file. Keys that are not named are False or empty; a key
    /// whose value is "-" is left out of the file.
    std::filesystem::path WriteReport(const std::string& name, const Row& data, const Row& options);

    std::filesystem::path Folder() const { return folder_.Path(); }

private:
    TempFolder folder_;

public:
    TestCrontab crontab;
    ScriptedPrompts prompts;
    FixedClock clock;
    TestEvents events;
    SettingsStore settings;
    Application application;
};

}  // namespace tallix::test
