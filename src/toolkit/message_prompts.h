// Messages and questions as the desktop's own dialogs, over whatever window is active.
#pragma once

#include "host/prompts.h"

namespace tallix::toolkit {

class MessagePrompts : public Prompts {
public:
    Answer Show(const Message& message) override;
    std::optional<std::filesystem::path> AskOpenFile(const FileQuestion& question) override;
    std::optional<std::filesystem::path> AskSaveFile(const FileQuestion& question) override;
    std::optional<std::filesystem::path> AskFolder(const std::string& title) override;
    std::optional<Colour> AskColour(const std::string& title) override;
};

}  // namespace tallix::toolkit
