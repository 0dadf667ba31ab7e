// The 42 rights as a list of boxes to tick.
#pragma once

#include <QListWidget>
#include <string>
#include <string_view>

namespace tallix::toolkit {

class PermissionList : public QListWidget {
    Q_OBJECT
public:
    explicit PermissionList(QWidget* parent = nullptr);

    /// Ticks the rights that an access string grants, and no others.
    void ShowAccess(std::string_view access);

    /// The access string of what is ticked.
    std::string Access() const;

    /// Ticks all rights or none.
    void TickAll(bool ticked);
};

}  // namespace tallix::toolkit
