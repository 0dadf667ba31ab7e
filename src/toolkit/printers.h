// The print system: its devices, the current one, and the print
// dialog.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/print_spooler.h"

class QWidget;

namespace tallix::toolkit {

class Printers {
public:
    virtual ~Printers() = default;

    /// The device names, as the print system lists them now.
    virtual std::vector<std::string> Names() const;

    /// The print dialog, over `parent`. Nothing when cancelled, or without a
    /// printer to choose.
    virtual std::optional<PrintTicket> Ask(QWidget* parent) const;

    /// The printer that pages go to; empty, for the system's default, until one is set.
    const std::string& Current() const { return current_; }
    void SetCurrent(const std::string& name) { current_ = name; }

private:
    std::string current_;
};

}  // namespace tallix::toolkit
