// What a job is compared with: the bare client library fetching the same rows and writing
// as many bytes, or sending the same rows one statement each.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "database/connection_text.h"

namespace tallix::bench {

/// A client library used as directly as it can be.
class BareClient {
public:
    virtual ~BareClient() = default;

    /// Fetches all rows unbuffered, looking at each cell; returns the bytes of text.
    virtual std::int64_t Fetch(const std::string& statement) = 0;

    virtual void Execute(const std::string& statement) = 0;
};

std::unique_ptr<BareClient> OpenBareClient(const ado::ConnectionParts& parts);

/// Writes that many bytes to a file in large pieces.
void WriteBytes(const std::string& file, std::int64_t bytes);

}  // namespace tallix::bench
