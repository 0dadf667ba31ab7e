// What ends a set-up, in one line.
#pragma once

#include <stdexcept>

namespace tallix {

class SetupError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace tallix
