// The text form of a settings hive:
//
//     ; a comment
//     [Software\Quillmere Software\Tallix]
//     "DBIP"="10.0.0.5"
//     "Seen"=hex:01,00
//
// Names and texts escape \\, \", \n and \r. Lines that are none of these are passed
// over and stay in the file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tallix {

struct HiveValue {
    enum class Kind { Text, Binary };

    Kind kind = Kind::Text;
    std::string data;  ///< the text, or the bytes
};

/// The first value of that path and name, which match without regard to case.
std::optional<HiveValue> FindHiveValue(std::string_view hive, std::string_view path, std::string_view name);

/// The hive with one value set and all other lines as they are. `path` has no line break.
std::string WithHiveValue(std::string_view hive, std::string_view path, std::string_view name,
                          const HiveValue& value);

}  // namespace tallix
