// Drop-down lists that several windows have.
#pragma once

#include <QComboBox>

namespace tallix::toolkit {

/// Holds every minute of the day, and nothing until a person chooses or types one.
QComboBox* MakeTimeList();

}  // namespace tallix::toolkit
