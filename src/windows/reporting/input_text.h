// What a person has typed or chosen, as the engine's text.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <string>

namespace tallix {

inline std::string TextOf(const QComboBox& list) {
    return list.currentText().toStdString();
}

inline std::string TextOf(const QLineEdit& field) {
    return field.text().toStdString();
}

}  // namespace tallix
