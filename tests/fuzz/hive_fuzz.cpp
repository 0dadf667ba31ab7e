// A hive that anybody may have edited: reading it never fails, and one write changes
// one value.
#include <cstdint>
#include <cstdlib>

#include "foundation/hive_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using tallix::FindHiveValue;
    const std::string_view hive(reinterpret_cast<const char*>(data), size);
    const auto other = FindHiveValue(hive, "A\\B", "other");
    const std::string written =
        tallix::WithHiveValue(hive, "a\\b", "Name", {tallix::HiveValue::Kind::Text, "x\n\"\\"});
    const auto value = FindHiveValue(written, "A\\B", "name");
    const auto otherNow = FindHiveValue(written, "A\\B", "other");
    if (!value || value->data != "x\n\"\\") std::abort();
    if (other.has_value() != otherNow.has_value() || (other && other->data != otherNow->data)) std::abort();
    return 0;
}
