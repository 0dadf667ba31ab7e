#include "host/prompts.h"

#include <algorithm>
#include <iostream>

namespace tallix {

Answer UnattendedPrompts::Show(const Message& message) {
    std::string line = message.title + ": " + message.text;
    std::erase(line, '\r');
    std::replace(line.begin(), line.end(), '\n', ' ');
    std::cerr << line << std::endl;
    return message.buttons == MessageButtons::YesNo ? Answer::No : Answer::Ok;
}

std::optional<std::filesystem::path> UnattendedPrompts::AskOpenFile(const FileQuestion&) {
    return {};
}
std::optional<std::filesystem::path> UnattendedPrompts::AskSaveFile(const FileQuestion&) {
    return {};
}
std::optional<std::filesystem::path> UnattendedPrompts::AskFolder(const std::string&) {
    return {};
}
std::optional<Colour> UnattendedPrompts::AskColour(const std::string&) {
    return {};
}

}  // namespace tallix
