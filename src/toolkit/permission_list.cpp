#include "toolkit/permission_list.h"

#include "toolkit/style.h"
#include "toolkit/text.h"

namespace tallix::toolkit {
namespace {

constexpr int kHeight = 30 * kGrid;

}  // namespace

PermissionList::PermissionList(QWidget* parent) : QListWidget(parent) {
    setMinimumHeight(kHeight);
    ensurePolished();  // rows that are scrolled before they show are measured with the right style
    for (const std::string_view label : kRightLabels) {
        auto* right = new QListWidgetItem(ToQString(label), this);
        right->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        right->setCheckState(Qt::Unchecked);
    }
}

void PermissionList::ShowAccess(const AccessRights& access) {
    for (int row = 0; row < count(); ++row) {
        const bool granted = Allows(access, static_cast<AccessRight>(row));
        item(row)->setCheckState(granted ? Qt::Checked : Qt::Unchecked);
    }
    scrollToTop();
}

AccessRights PermissionList::Access() const {
    AccessRights access;
    for (int row = 0; row < count(); ++row) {
        if (item(row)->checkState() == Qt::Checked) access.Grant(static_cast<AccessRight>(row));
    }
    return access;
}

void PermissionList::TickAll(bool ticked) {
    for (int row = 0; row < count(); ++row) item(row)->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
}

}  // namespace tallix::toolkit
