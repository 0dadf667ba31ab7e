// Continue-on-error for long routines: a statement that fails is abandoned and the next
// one runs. A test that fails enters the body after it. One statement per line:
//
//     Attempt([&] { flag = ToBoolean(text); });
//     if (TestOrEnter([&] { return calls.RecordCount() == 0; })) return NoData();
//
// Only the engine's own failures are passed over. Anything else (out of memory, a
// programming error) goes through.
#pragma once

#include <utility>

#include "failures/errors.h"

namespace tallix {

/// Runs a statement. Returns false when it failed and was abandoned.
template <typename Statement>
bool Attempt(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const DatabaseError&) {
    } catch (const ConversionError&) {
    }
    return false;
}

/// The outcome of a test; true as well when the test itself failed.
template <typename Test>
bool TestOrEnter(Test&& test) {
    bool outcome = true;
    Attempt([&] { outcome = std::forward<Test>(test)(); });
    return outcome;
}

}  // namespace tallix
