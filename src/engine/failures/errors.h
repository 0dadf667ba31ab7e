// The two failures that the engine throws. Each carries what failed, in words
// that can be shown to a person.
#pragma once

#include <stdexcept>

namespace tallix {

/// A database refused something: a connect, a statement, a read of a closed set.
class DatabaseError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A text does not hold the value that was asked of it (number, date, Boolean).
class ConversionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace tallix
