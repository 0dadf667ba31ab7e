// Questions and messages to the person at the screen. The engine raises them
// through this interface; the windows answer it with message boxes, an unattended
// run with lines on standard error, and tests with a script.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tallix {

enum class MessageIcon { None, Information, Question, Exclamation, Critical };
enum class MessageButtons { Ok, YesNo };
enum class Answer { Ok, Yes, No };

struct Message {
    std::string title;
    std::string text;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
};

struct FileQuestion {
    std::string title;
    std::string filterLabel;    ///< such as "Tallix Backup File"
    std::string filterPattern;  ///< such as "*.sbk"
};

struct Colour {
    int red = 0;
    int green = 0;
    int blue = 0;
};

class Prompts {
public:
    virtual ~Prompts() = default;

    /// Shows a message box and waits for its button.
    virtual Answer Show(const Message& message) = 0;

    /// Dialogs for a file to read, a file to write and a folder. Nothing when cancelled.
    virtual std::optional<std::filesystem::path> AskOpenFile(const FileQuestion& question) = 0;
    virtual std::optional<std::filesystem::path> AskSaveFile(const FileQuestion& question) = 0;
    virtual std::optional<std::filesystem::path> AskFolder(const std::string& title) = 0;

    /// The colour dialog. Nothing when cancelled.
    virtual std::optional<Colour> AskColour(const std::string& title) = 0;
};

/// Prompts of a run with nobody at the screen: every message is one line on standard
/// error that nobody waits for, every question is answered No, every dialog cancelled.
class UnattendedPrompts : public Prompts {
public:
    Answer Show(const Message& message) override;
    std::optional<std::filesystem::path> AskOpenFile(const FileQuestion& question) override;
    std::optional<std::filesystem::path> AskSaveFile(const FileQuestion& question) override;
    std::optional<std::filesystem::path> AskFolder(const std::string& title) override;
    std::optional<Colour> AskColour(const std::string& title) override;
};

}  // namespace tallix
