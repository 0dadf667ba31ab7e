// Prompts that follow a script: every message is kept for the test to look at, and
// answers are given in the order in which the test queued them.
#pragma once

#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "host/prompts.h"

namespace tallix::test {

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

}  // namespace tallix::test
