// Custom mappings: for each of fifteen data items, its place in a line of a telephone system's
// output. They are stored in tblphonemapping, and the Processor applies them.
//
// The functions that read and write continue on errors: they ignore what the server refuses.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "session/application.h"

namespace tallix {

struct MappingItem {
    std::string_view label;
    std::string_view column;  ///< its two columns end in "ST" and "FN"
    int limit;                ///< the greatest difference of the two
};

inline constexpr std::array<MappingItem, 15> kMappingItems{{
    {"Date:", "Date", 45},
    {"Time:", "Time", 45},
    {"Duration:", "Duration", 45},
    {"Extension:", "Extension", 4},
    {"Number of Rings:", "NumRings", 45},
    {"Original Number:", "OrigNum", 45},
    {"Destination Number:", "DestNum", 45},
    {"Dialled Number:", "Dialled", 45},
    {"Internal:", "Internal", 1},
    {"Error:", "Error", 1},
    {"Supervision:", "Supervision", 1},
    {"Speedcall:", "Speedcall", 1},
    {"Forward:", "Forward", 1},
    {"Trunk:", "Trunk", 10},
    {"Account:", "Account", 5},
}};

/// The sites that sample lines can be taken from.
inline constexpr std::array<std::string_view, 12> kSampleSites{"001", "002", "003", "004", "005", "006",
                                                               "007", "008", "009", "010", "011", "012"};

/// Positions of the first and the last character of an item, counted from 1, as the texts of
/// their two boxes. Empty for an item that is not mapped.
struct Positions {
    std::string start;
    std::string finish;

    bool operator==(const Positions&) const = default;
};

struct Mapping {
    std::string name;
    std::array<Positions, kMappingItems.size()> items;  ///< in the order of kMappingItems
};

/// The positions of a selection that begins at `start`, counted from 0, and has `length`
/// characters; nothing when that is too long for the item.
std::optional<Positions> MapToField(const MappingItem& item, int start, int length);

std::vector<std::string> ReadMappingNames(const Session& session);

/// The mapping of that name; nothing for an unknown name.
std::optional<Mapping> ReadMapping(const Session& session, const std::string& name);

/// Stores a mapping over the one of its name, or as a new one, and adds a row to the access
/// log. Returns false, and writes nothing, for a mapping without a name and for one that lacks
/// a start, which it refuses with a message.
bool SaveMapping(const Application& application, const Mapping& mapping);

void DeleteMapping(const Session& session, const std::string& name);

enum class Direction { Back, Forward };

/// The sample lines of a site, one at a time. Each step reads them again, since the services
/// go on collecting.
class SampleLines {
public:
    /// `application` must outlive the object.
    explicit SampleLines(const Application& application) : application_(application) {}

    // Each returns the text to show: a line, or a text that says there is none. Without a site
    // they ask for one with a message and return nothing.

    std::optional<std::string> First(const std::string& site);

    /// The next or the previous line, at most one step past either end. A site other than the
    /// last one starts at its first line.
    std::optional<std::string> Step(const std::string& site, Direction direction);

private:
    std::string Read();

    const Application& application_;
    std::string site_;
    std::int64_t place_ = 0;  ///< from -1, before the first line, to their count
};

}  // namespace tallix
