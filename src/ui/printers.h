// The print system: the devices there are, the one that is current, and the way of a
// document to it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallix::ui {

class Printers {
public:
    virtual ~Printers() = default;

    /// The device names, as the print system lists them now.
    virtual std::vector<std::string> Names() const;

    /// The printer that pages go to; the system's default until one is set.
    std::string Current() const;
    void SetCurrent(const std::string& name) { current_ = name; }

private:
    std::string current_;
};

}  // namespace tallix::ui
