#pragma once

#include <string_view>

#include "database/database_scope.h"
#include "database/rows.h"

namespace tallix {

/// The field of a call; empty where it is NULL or the column is absent.
inline std::string_view FieldText(ado::Row call, ado::Column column) {
    return column ? call.Text(column) : std::string_view();
}

}  // namespace tallix
