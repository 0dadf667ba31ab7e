#include "database/connection_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <optional>

#include "failures/errors.h"
#include "text/text_conversion.h"

namespace tallix::ado {

namespace {

constexpr std::string_view kEmbeddedAddress = "sqlite:";

struct Provider {
    std::string_view mark;  ///< what its name holds
    Server server;
};

constexpr std::array kProviders{
    Provider{"mysql odbc", Server::MySql},
    Provider{"postgresql ansi", Server::Postgres},
    Provider{"sqlncli", Server::SqlServer},
};

using Entries = std::map<std::string, std::string>;

// A value in braces runs to the closing brace, any other to the next semicolon.
std::string_view TakeValue(std::string_view& rest) {
    const bool braced = rest.starts_with('{');
    const std::size_t end = rest.find(braced ? '}' : ';');
    const std::string_view value = rest.substr(0, end).substr(braced ? 1 : 0);
    const std::size_t semicolon = end == std::string_view::npos ? end : rest.find(';', end);
    rest = semicolon == std::string_view::npos ? std::string_view() : rest.substr(semicolon + 1);
    return value;
}

Entries ReadEntries(std::string_view text) {
    Entries entries;
    while (!text.empty()) {
        const std::size_t equals = std::min(text.find('='), text.size());
        const std::string name = UpperCase(Trim(text.substr(0, equals)));
        text.remove_prefix(std::min(equals + 1, text.size()));
        entries.emplace(name, TakeValue(text));
    }
    return entries;
}

std::string Entry(const Entries& entries, const std::string& name) {
    const auto found = entries.find(name);
    return found == entries.end() ? std::string() : found->second;
}

std::optional<Server> ServerOf(std::string_view providerName) {
    const std::string name = LowerCase(providerName);
    for (const Provider& provider : kProviders) {
        if (name.find(provider.mark) != std::string::npos) return provider.server;
    }
    return std::nullopt;
}

std::optional<int> Port(std::string_view digits) {
    int port = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), port);
    const bool whole = error == std::errc() && end == digits.data() + digits.size();
    if (!whole || port < 1 || port > 65535) return std::nullopt;
    return port;
}

// "host", "host:port", "[::1]:port"; an address with several colons and no brackets
// is all host.
void ReadAddress(std::string_view address, ConnectionParts& parts) {
    const bool bracketed = address.starts_with('[') && address.find(']') != std::string_view::npos;
    const std::size_t hostEnd = bracketed ? address.find(']') : 0;
    const std::size_t colon = address.find(':', hostEnd);
    const bool single =
        colon != std::string_view::npos && address.find(':', colon + 1) == std::string_view::npos;
    const std::optional<int> port = single ? Port(address.substr(colon + 1)) : std::nullopt;
    if (port) parts.port = *port;
    if (bracketed) {
        parts.host = address.substr(1, hostEnd - 1);
    } else {
        parts.host = port ? address.substr(0, colon) : address;
    }
}

}  // namespace

ConnectionParts ReadConnectionText(std::string_view text) {
    const Entries entries = ReadEntries(text);
    const std::string driver = Entry(entries, "DRIVER");
    const std::string provider = Entry(entries, "PROVIDER");
    const std::optional<Server> server = ServerOf(driver.empty() ? provider : driver);
    if (!server && driver.empty())
        throw DatabaseError("No database provider is known by the name \"" + provider + "\"");

    ConnectionParts parts;
    parts.database = Entry(entries, "DATABASE");
    parts.user = Entry(entries, "UID");
    parts.password = Entry(entries, "PWD");
    const std::string address = Entry(entries, "SERVER");
    if (LowerCase(address).starts_with(kEmbeddedAddress)) {
        parts.file = address.substr(kEmbeddedAddress.size());
        return parts;
    }
    parts.server = server.value_or(Server::SqlServer);
    if (!server) parts.driver = driver;
    ReadAddress(address, parts);
    return parts;
}

}  // namespace tallix::ado
