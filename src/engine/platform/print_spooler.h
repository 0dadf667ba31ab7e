// The way of a finished document to a printer: the CUPS spooler, which keeps it until
// the device has taken it.
#pragma once

#include <string>
#include <string_view>

namespace tallix {

struct PrintTicket {
    std::string printer{};  ///< device name; empty for the default printer
    std::string title{};    ///< as the printer's queue shows it
    int copies = 1;
    std::string pageRange{};  ///< such as "2-5"; empty for all pages
};

/// Hands a PDF document to the spooler. Returns false, with nothing queued, when the
/// printer is unknown or the spooler does not accept the document.
bool SpoolDocument(const PrintTicket& ticket, std::string_view pdf);

}  // namespace tallix
