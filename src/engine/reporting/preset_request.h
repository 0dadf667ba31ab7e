// What a person chooses from and fills in for a preset report: the lists of the Preset
// Reports window, the inputs that a report asks for, and what a run demands of them.
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "reporting/run_description.h"
#include "session/application.h"

namespace tallix {

/// The lists that the window opens with.
struct PresetChoices {
    std::vector<std::string> reports;
    std::vector<std::string> sites;   ///< "ALL", then ids padded to three digits
    std::vector<std::string> groups;  ///< "ALL", then names
};

/// Reads the lists. Opens the database for itself. Throws DatabaseError.
PresetChoices ReadPresetChoices(Application& application);

/// The inputs of the window, by the keys of section "Options" that enable them.
enum class Input { Date, Duration, Extension, Account, Site, Group, Time };
inline constexpr std::size_t kInputs = 7;

class EnabledInputs {
public:
    /// None is enabled.
    EnabledInputs() = default;

    /// Those whose key says "True", in any case. A missing file enables none.
    explicit EnabledInputs(const std::filesystem::path& reportFile);

    bool operator[](Input input) const { return enabled_[static_cast<std::size_t>(input)]; }

private:
    std::array<bool, kInputs> enabled_{};
};

/// Why a run is refused: a demanded input is empty or not numeric. Nothing otherwise.
std::optional<Message> RefusalOf(const PresetRun& run);

/// The message after a run that found no records.
Message NoDataMessage();

}  // namespace tallix
