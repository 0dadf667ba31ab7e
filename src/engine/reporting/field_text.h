#pragma once

#include <string_view>

#include "database/recordset.h"

namespace tallix {

/// The field of the current call; empty where it is NULL or the column is absent.
inline std::string_view FieldText(const ado::Recordset& calls, ado::Column column) {
    return column ? calls.Text(column) : std::string_view();
}

}  // namespace tallix
