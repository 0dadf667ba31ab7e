// The inputs for the parameters that a schedule passes to its report.
#pragma once

#include <QGridLayout>
#include <QLineEdit>
#include <QWidget>
#include <array>
#include <string>

#include "scheduling/schedules.h"

namespace tallix {

class ParameterFields : public QWidget {
    Q_OBJECT
public:
    ParameterFields();

    /// Enables the parameters that a report can use. The others are emptied, so that they
    /// are not stored.
    void Offer(const std::array<bool, kParameters>& usable);

    /// The texts by Parameter.
    std::array<std::string, kParameters> Texts() const;

private:
    struct Input {
        QWidget* label;    ///< both times share one
        QLineEdit* field;  ///< of a time list: its own
        QWidget* input;
    };

    void AddField(QGridLayout& grid, int row, int column, Parameter parameter, const QString& caption);
    void AddTimes(QGridLayout& grid, int row, int column);

    std::array<Input, kParameters> inputs_{};
};

}  // namespace tallix
