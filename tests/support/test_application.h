// A whole application in a folder of its own: settings, working files, and an empty
// database with every table. The embedded engine unless a test names another.
#pragma once

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"
#include "session/application.h"
#include "support/temp_folder.h"

namespace tallix::test {

std::unique_ptr<ado::Connection> ConnectTo(const std::string& connectionText);

/// All rows of a statement, one per line, "|" after every value, NULL by its name.
std::string AllRows(ado::Connection& connection, std::string_view statement);

/// The lines of a file without their CR LF.
std::vector<std::string> ReadLines(const std::filesystem::path& file);

/// While it lives, this process finds a program "crontab" that keeps its text in a file, so
/// that the user's tasks are left alone.
class TestCrontab {
public:
    TestCrontab() {
        if (const char* path = std::getenv("PATH")) searchPath_ = path;
        const std::filesystem::path program = folder_.Write("crontab", R"(#!/bin/sh
file=$(dirname "$0")/text
case $1 in
-l) if [ -e "$file" ]; then cat "$file"; else echo "no crontab for test" >&2; exit 1; fi ;;
-r) rm "$file" ;;
-) cat >"$file.new" && mv "$file.new" "$file" ;;
esac
)");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
        setenv("PATH", (folder_.Path().string() + ":" + searchPath_).c_str(), 1);
    }
    ~TestCrontab() { setenv("PATH", searchPath_.c_str(), 1); }
    TestCrontab(const TestCrontab&) = delete;
    TestCrontab& operator=(const TestCrontab&) = delete;

    std::string Text() const { return ReadBytes(folder_.Path() / "text"); }
    void Set(std::string_view text) const { folder_.Write("text", text); }

private:
    TempFolder folder_;
    std::string searchPath_;
};

/// Keeps every message for the test to look at, and gives answers in the order in which the
/// test queued them.
class ScriptedPrompts : public Prompts {
public:
    Answer Show(const Message& message) override {
        messages.push_back(message);
        const Answer unscripted = message.buttons == MessageButtons::YesNo ? Answer::No : Answer::Ok;
        return Next(answers).value_or(unscripted);
    }
    std::optional<std::filesystem::path> AskOpenFile(const FileQuestion& question) override {
        questions.push_back(question);
        return Next(paths);
    }
    std::optional<std::filesystem::path> AskSaveFile(const FileQuestion& question) override {
        questions.push_back(question);
        return Next(paths);
    }
    std::optional<std::filesystem::path> AskFolder(const std::string& title) override {
        questions.push_back({title, "", ""});
        return Next(paths);
    }
    std::optional<Colour> AskColour(const std::string& title) override {
        questions.push_back({title, "", ""});
        return Next(colours);
    }

    std::vector<Message> messages;        ///< every message shown, first to last
    std::vector<FileQuestion> questions;  ///< every dialog asked for, first to last

    /// What to answer next. An empty queue answers Ok or No, and cancels dialogs.
    std::deque<Answer> answers;
    std::deque<std::filesystem::path> paths;
    std::deque<Colour> colours;

private:
    template <typename Value>
    static std::optional<Value> Next(std::deque<Value>& queue) {
        if (queue.empty()) return std::nullopt;
        Value value = queue.front();
        queue.pop_front();
        return value;
    }
};

/// Shows the moment that a test gives it.
class FixedClock : public Clock {
public:
    DateTime Now() const override { return moment; }

    DateTime moment{2021, 3, 9, 14, 5, 30};
};

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
