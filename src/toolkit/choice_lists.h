// Drop-down lists that several windows have.
#pragma once

#include <QComboBox>

namespace tallix::toolkit {

/// Offers every minute of the day. Empty until a person chooses or types one.
QComboBox* MakeTimeList();

}  // namespace tallix::toolkit
