// The texts that a mail carries in its head, in the forms that mail servers and mail
// programs read: one line, ASCII, nothing in them that ends a line early.
#pragma once

#include <ctime>
#include <string>
#include <string_view>

namespace tallix {

/// A text for a header. Control characters are dropped; a text beyond ASCII becomes
/// encoded words of UTF-8 ("=?UTF-8?B?...?="), each on a line of its own.
std::string HeaderText(std::string_view text);

/// An address for an envelope or a header: without control characters, blanks and angle
/// brackets.
std::string PlainAddress(std::string_view address);

/// A display name and an address: "Name" <address>.
std::string NamedAddress(std::string_view name, std::string_view address);

/// "Tue, 09 Mar 2021 14:05:30 +0000" in the machine's time zone, whatever its language.
std::string MailDate(std::time_t moment);

/// A new identity in the domain of the sender, in angle brackets.
std::string NewMessageId(std::string_view from);

/// The text with all line ends turned into carriage return and line feed.
std::string WithNetworkLineEnds(std::string_view text);

}  // namespace tallix
