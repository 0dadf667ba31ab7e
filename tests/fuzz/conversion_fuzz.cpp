// Texts of call rows and settings: a conversion gives a value or a ConversionError.
#include <cstdint>
#include <cstdlib>

#include "foundation/attempt.h"
#include "foundation/code_page.h"
#include "foundation/encryption_tools.h"
#include "foundation/text_conversion.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallix;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const bool isNumber = Attempt([&] { ToInteger32(text); });
    if (isNumber && !IsNumeric(text)) std::abort();
    Attempt([&] { ToBoolean(text); });
    const auto moment = ReadDateTime(text);
    if (moment && moment->year != 0 && ToDateTime(ShortDate(*moment)).day != moment->day) std::abort();
    if (Attempt([&] { DayNumber(text); }) != moment.has_value()) std::abort();
    if (ToAnsi(FromAnsi(text)) != text || !IsUtf8(DecodeLine(text))) std::abort();
    if (std::string(Left(text, 2)) + std::string(Mid(text, 3, SIZE_MAX)) != text) std::abort();
    if (!EqualNoCase(LowerCase(text), text) || Right(text, Len(text)) != text) std::abort();
    Attempt([&] { EncipherForStorage(DecipherFromStorage(text)); });
    return 0;
}
