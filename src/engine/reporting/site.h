// The first site of the table. Its address heads the page; the rows use its dialling code
// and voicemail number.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "database/database_scope.h"
#include "reporting/report_settings.h"

namespace tallix {

/// The cell of what has no text of its own, so that its borders are drawn.
inline constexpr std::string_view kBlankCell = "&nbsp;";

struct Site {
    std::optional<std::string> name;        ///< nothing without a site
    std::vector<std::string> addressLines;  ///< below the name
    std::string email;
    std::string voicemail;
    std::string areaCode;              ///< as stored, whatever the setting `AreaCode`
    std::string areaName{kBlankCell};  ///< name of the site's own area
    bool isMitel5000 = false;
};

/// Reads the site. What cannot be read stays empty.
Site ReadFirstSite(const DatabaseScope& database, NumberTable numbers);

/// The table that names numbers.
std::string_view NumberTableName(NumberTable numbers);

}  // namespace tallix
