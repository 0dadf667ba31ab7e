#include "setup/setup_options.h"

#include <fmt/format.h>

#include <charconv>
#include <functional>
#include <limits>

#include "setup/administrator_account.h"
#include "setup/demo_calls.h"

namespace tallix {
namespace {

constexpr std::string_view kUsage =
    R"(Usage: Tallix_Setup [--type 1|2|3] [--address ADDRESS] [--user NAME] [--password TEXT]
                    [--admin-password TEXT] [--demo CALLS] [--seed N]

Lays down what Tallix Reports needs: settings, tables, reference data, the account
"Administrator", and on request a made-up company with its calls. Nothing that is
there already is changed, so that it may be run again at any time.

  --type            database: 1 MySQL or MariaDB (default), 2 SQL Server, 3 PostgreSQL
  --address         HOST, HOST:PORT or sqlite:FILE; default: the stored address, else
                    the file tallix.db in the application folder
  --user            database user
  --password        database password
  --admin-password  password of the account "Administrator" where it is made;
                    without it one is made up and shown once
  --demo            add this many calls of a made-up company
  --seed            another number, another set of calls; default 1
  --help            show this text
)";

std::uint64_t ToCount(std::string_view option, std::string_view text, std::uint64_t most) {
    std::uint64_t count = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, count);
    if (error != std::errc() || stop != end || count > most) {
        throw UsageError(fmt::format("{} takes a whole number from 0 to {}, not \"{}\"", option, most, text));
    }
    return count;
}

std::string ToType(std::string_view text) {
    if (text != "1" && text != "2" && text != "3") {
        throw UsageError(fmt::format("--type takes 1, 2 or 3, not \"{}\"", text));
    }
    return std::string(text);
}

std::string ToAdminPassword(std::string_view text) {
    if (!CanLogInWith(text)) {
        throw UsageError(
            fmt::format("--admin-password takes 1 to {} characters without an SQL word such as "
                        "\"select\" or \"update\", which the login refuses",
                        kLongestAccountText));
    }
    return std::string(text);
}

struct Option {
    std::string_view name;
    std::function<void(SetupOptions&, std::string_view value)> take;
};

const std::vector<Option>& Options() {
    static const std::vector<Option> options = {
        {"--type", [](SetupOptions& o, std::string_view v) { o.type = ToType(v); }},
        {"--address", [](SetupOptions& o, std::string_view v) { o.address = v; }},
        {"--user", [](SetupOptions& o, std::string_view v) { o.user = v; }},
        {"--password", [](SetupOptions& o, std::string_view v) { o.password = v; }},
        {"--admin-password",
         [](SetupOptions& o, std::string_view v) { o.adminPassword = ToAdminPassword(v); }},
        {"--demo",
         [](SetupOptions& o, std::string_view v) { o.demoCalls = ToCount("--demo", v, kMostCalls); }},
        {"--seed",
         [](SetupOptions& o, std::string_view v) {
             o.seed = ToCount("--seed", v, std::numeric_limits<std::uint64_t>::max());
         }},
    };
    return options;
}

const Option& FindOption(std::string_view name) {
    for (const Option& option : Options()) {
        if (option.name == name) return option;
    }
    throw UsageError(fmt::format("unknown option \"{}\" (--help shows them all)", name));
}

}  // namespace

SetupOptions ParseSetupOptions(const std::vector<std::string>& arguments) {
    SetupOptions options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == "--help") {
            options.help = true;
            continue;
        }
        const Option& option = FindOption(arguments[i]);
        if (++i == arguments.size() || arguments[i].empty()) {
            throw UsageError(fmt::format("{} needs a value", option.name));
        }
        option.take(options, arguments[i]);
    }
    return options;
}

std::string_view SetupUsage() {
    return kUsage;
}

}  // namespace tallix
