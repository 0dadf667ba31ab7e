#include "support/loopback_servers.h"

#include <chrono>
#include <stdexcept>
#include <thread>

#include "support/places.h"

namespace tallix::test {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 20s;
constexpr std::string_view kHeaderPrefix = "header.";

ReceivedMail ReadMail(const std::filesystem::path& folder) {
    const auto read = [&](const char* name) { return ReadBytes(folder / name); };
    ReceivedMail mail{read("from"), read("to"), read("user"), read("raw"), read("body"), {}, {}};
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

PythonServer::PythonServer(const std::string& script, const std::vector<std::string>& arguments) {
    // The system's own interpreter: others do not see Debian's packages.
    std::string command = "exec /usr/bin/python3 '" + (SourceFolder() / "tests/support" / script).string() +
                          "' " + folder_.Path().string();
    for (const std::string& argument : arguments) command += " '" + argument + "'";
    const std::filesystem::path port = folder_.Path() / "port";
    input_ = popen((command + " >" + port.string()).c_str(), "we");
    if (input_ == nullptr) throw std::runtime_error(script + " did not start");
    for (auto waited = 0ms; waited < kPatience && !ReadBytes(port).ends_with('\n'); waited += 10ms) {
        std::this_thread::sleep_for(10ms);
    }
    port_ = std::atoi(ReadBytes(port).c_str());
    if (port_ == 0) throw std::runtime_error(script + " printed no port");
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
