// The test of a typed address: four numbers from 0 to 255 with points between them.
// Leading zeros pass; host names do not.
#pragma once

#include <string_view>

namespace tallix {

/// The places where an address is typed differ in one thing: whether two points side by
/// side mean a 0 between them (the database's address) or spoil the address (a
/// telephone system's). A point at either end spoils it in any case.
enum class EmptyPart { CountsAsZero, Refused };

bool IsIpAddress(std::string_view text, EmptyPart emptyPart);

}  // namespace tallix
