#include "support/smtp_server.h"

namespace tallix::test {
namespace {

constexpr std::string_view kHeaderPrefix = "header.";

std::vector<std::string> Arguments(const std::filesystem::path& folder,
                                   const std::optional<SmtpServer::Account>& account) {
    if (!account) return {folder.string()};
    return {folder.string(), "--user=" + account->user, "--password=" + account->password};
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

SmtpServer::SmtpServer(const std::optional<Account>& account)
    : server_("smtp_server.py", Arguments(folder_.Path(), account)) {}

std::vector<ReceivedMail> SmtpServer::Mails() const {
    std::vector<ReceivedMail> mails;
    for (int number = 1;; ++number) {
        const std::filesystem::path folder = folder_.Path() / std::to_string(number);
        if (!std::filesystem::exists(folder / "complete")) return mails;
        mails.push_back(ReadMail(folder));
    }
}

}  // namespace tallix::test
