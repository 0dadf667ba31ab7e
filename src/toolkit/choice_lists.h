// Drop-down lists that several windows have.
#pragma once

#include <QComboBox>
#include <QStringList>
#include <string>
#include <vector>

namespace tallix::toolkit {

/// UTF-8 texts as the toolkit takes them.
QStringList Texts(const std::vector<std::string>& list);

/// Holds every minute of the day, and nothing until a person chooses or types one.
QComboBox* MakeTimeList();

}  // namespace tallix::toolkit
