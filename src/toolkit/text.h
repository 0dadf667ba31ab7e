// The engine's UTF-8 texts as Qt's strings.
#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <string_view>
#include <vector>

namespace tallix::toolkit {

QString ToQString(std::string_view text);
QStringList ToQStringList(const std::vector<std::string>& texts);

}  // namespace tallix::toolkit
