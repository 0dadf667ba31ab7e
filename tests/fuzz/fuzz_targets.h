// What must hold of any text that a hive, an ini file or a row may contain; a target
// aborts where it does not.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "compat/hive_file.h"
#include "compat/ini_file.h"
#include "failures/attempt.h"
#include "text/code_page.h"
#include "text/encryption_tools.h"
#include "text/text_conversion.h"

namespace tallix::fuzz {

inline void Check(bool holds) {
    if (!holds) std::abort();
}

/// Reading never fails, and one write changes one value.
inline void Hive(std::string_view hive) {
    const auto other = FindHiveValue(hive, "A\\B", "other");
    const std::string written = WithHiveValue(hive, "a\\b", "Name", {HiveValue::Kind::Text, "x\n\"\\"});
    const auto value = FindHiveValue(written, "A\\B", "name");
    const auto otherNow = FindHiveValue(written, "A\\B", "other");
    Check(value && value->data == "x\n\"\\");
    Check(other.has_value() == otherNow.has_value() && (!other || other->data == otherNow->data));
}

inline void Ini(std::string_view text) {
    const auto other = IniFile::FromText(text).Find("Data", "other");
    const auto written = IniFile::FromText(WithIniKey(text, "data", "Name", "a=b"));
    Check(written.Read("Data", "name") == "a=b" && written.Find("Data", "other") == other);
}

/// A conversion gives a value or a ConversionError.
inline void Conversion(std::string_view text) {
    Check(!Attempt([&] { ToInteger32(text); }) || IsNumeric(text));
    Attempt([&] { ToBoolean(text); });
    const auto moment = ReadDateTime(text);
    Check(!moment || moment->year == 0 || ToDateTime(ShortDate(*moment)).day == moment->day);
    Check(Attempt([&] { DayNumber(text); }) == moment.has_value());
    Check(ToAnsi(FromAnsi(text)) == text && IsUtf8(DecodeLine(text)));
    Check(std::string(Left(text, 2)) + std::string(Mid(text, 3, SIZE_MAX)) == text);
    Check(EqualNoCase(LowerCase(text), text) && Right(text, Len(text)) == text);
    Attempt([&] { EncipherForStorage(DecipherFromStorage(text)); });
}

}  // namespace tallix::fuzz
