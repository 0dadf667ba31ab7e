#include "ui/open_address.h"

#include <QDesktopServices>
#include <QUrl>

namespace tallix::ui {

bool OpenAddress(const std::string& address) {
    return QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

}  // namespace tallix::ui
