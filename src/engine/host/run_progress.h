// Hears how far long work over records has come; the windows show it.
#pragma once

#include <cstdint>

namespace tallix {

class RunProgress {
public:
    virtual ~RunProgress() = default;

    /// At each record, before anything is done with it. `record` counts from 1 to
    /// `bound`. Cheap enough for millions of records.
    virtual void Record(std::int64_t record, std::int64_t bound) = 0;
};

/// For work that nobody watches.
class NoProgress : public RunProgress {
public:
    void Record(std::int64_t, std::int64_t) override {}
};

}  // namespace tallix
