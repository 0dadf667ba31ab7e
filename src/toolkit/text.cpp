#include "toolkit/text.h"

namespace tallix::toolkit {

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QStringList ToQStringList(const std::vector<std::string>& texts) {
    QStringList list;
    list.reserve(static_cast<qsizetype>(texts.size()));
    for (const std::string& text : texts) list << ToQString(text);
    return list;
}

}  // namespace tallix::toolkit
