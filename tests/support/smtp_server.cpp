#include "support/smtp_server.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace tallix::test {
namespace {

/// The system's own interpreter: others do not see Debian's packages.
constexpr const char* kPython = "/usr/bin/python3";
constexpr std::string_view kHeaderPrefix = "header.";

std::array<int, 2> MakePipe() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("No pipe for the mail server");
    return ends;
}

std::vector<std::string> CommandLine(const std::filesystem::path& folder,
                                     const std::optional<SmtpServer::Account>& account) {
    std::vector<std::string> words = {kPython, TALLIX_SOURCE_DIR "/tests/support/smtp_server.py",
                                      folder.string()};
    if (account) {
        for (const std::string& word : {"--user=" + account->user, "--password=" + account->password}) {
            words.push_back(word);
        }
    }
    return words;
}

ReceivedMail ReadMail(const std::filesystem::path& folder) {
    ReceivedMail mail{ReadBytes(folder / "from"),
                      ReadBytes(folder / "to"),
                      ReadBytes(folder / "user"),
                      ReadBytes(folder / "raw"),
                      ReadBytes(folder / "body"),
                      {},
                      {}};
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with(kHeaderPrefix))
            mail.headers[name.substr(kHeaderPrefix.size())] = ReadBytes(entry.path());
    }
    for (int number = 1;; ++number) {
        const std::filesystem::path file = folder / ("attachment." + std::to_string(number));
        if (!std::filesystem::exists(file)) return mail;
        mail.attachments.emplace_back(ReadBytes(file.string() + ".name"), ReadBytes(file));
    }
}

}  // namespace

SmtpServer::SmtpServer(const std::optional<Account>& account) {
    const auto input = MakePipe();
    const auto output = MakePipe();
    std::vector<std::string> words = CommandLine(folder_.Path(), account);
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    process_ = fork();
    if (process_ == 0) {
        dup2(input[0], STDIN_FILENO);
        dup2(output[1], STDOUT_FILENO);
        execv(kPython, arguments.data());
        _exit(127);
    }
    close(input[0]);
    close(output[1]);
    input_ = input[1];
    FILE* lines = fdopen(output[0], "r");
    std::array<char, 16> line{};
    if (std::fgets(line.data(), static_cast<int>(line.size()), lines) != nullptr)
        port_ = std::atoi(line.data());
    std::fclose(lines);
    if (port_ == 0) throw std::runtime_error("The mail server did not start");
}

SmtpServer::~SmtpServer() {
    close(input_);
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
}

std::vector<ReceivedMail> SmtpServer::Mails() const {
    std::vector<ReceivedMail> mails;
    for (int number = 1;; ++number) {
        const std::filesystem::path folder = folder_.Path() / std::to_string(number);
        if (!std::filesystem::exists(folder / "complete")) return mails;
        mails.push_back(ReadMail(folder));
    }
}

}  // namespace tallix::test
