// An ini text of any origin: reading it never fails, and one write changes one key.
#include <cstdint>
#include <cstdlib>

#include "foundation/ini_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto other = tallix::IniFile::FromText(text).Find("Data", "other");
    const auto written = tallix::IniFile::FromText(tallix::WithIniKey(text, "data", "Name", "a=b"));
    if (written.Read("Data", "name") != "a=b" || written.Find("Data", "other") != other) std::abort();
    return 0;
}
