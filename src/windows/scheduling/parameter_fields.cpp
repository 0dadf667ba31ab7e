#include "windows/scheduling/parameter_fields.h"

#include <QLabel>

#include "toolkit/choice_lists.h"
#include "toolkit/label.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

constexpr int kFieldWidth = 20 * toolkit::kGrid;
constexpr char kTimeCaption[] = "Time:";

}  // namespace

ParameterFields::ParameterFields() {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(toolkit::kSpacing * 2);
    grid->setVerticalSpacing(toolkit::kSpacing);
    AddField(*grid, 0, 0, Parameter::Account, "Account:");
    AddField(*grid, 1, 0, Parameter::Date, "Date:");
    AddField(*grid, 2, 0, Parameter::Duration, "Duration:");
    AddField(*grid, 0, 2, Parameter::Extension, "Extension:");
    AddField(*grid, 1, 2, Parameter::Site, "Site:");
    AddTimes(*grid, 2, 2);
    grid->setColumnStretch(4, 1);
}

void ParameterFields::AddField(QGridLayout& grid, int row, int column, Parameter parameter,
                               const QString& caption) {
    auto* field = new QLineEdit;
    field->setFixedWidth(kFieldWidth);
    auto* label = toolkit::LabelOf(caption, field);
    grid.addWidget(label, row, column);
    grid.addWidget(field, row, column + 1);
    inputs_.at(static_cast<std::size_t>(parameter)) = {label, field, field};
}

void ParameterFields::AddTimes(QGridLayout& grid, int row, int column) {
    QWidget* label = nullptr;
    for (const Parameter parameter : {Parameter::TimeStart, Parameter::TimeFinish}) {
        auto* list = toolkit::MakeTimeList();
        list->setAccessibleName(kTimeCaption);
        if (label == nullptr) grid.addWidget(label = toolkit::LabelOf(kTimeCaption, list), row, column);
        grid.addWidget(list, row++, column + 1);
        inputs_.at(static_cast<std::size_t>(parameter)) = {label, list->lineEdit(), list};
    }
}

void ParameterFields::Offer(const std::array<bool, kParameters>& usable) {
    for (std::size_t i = 0; i < kParameters; ++i) {
        const Input& input = inputs_.at(i);
        input.label->setEnabled(usable.at(i));
        input.input->setEnabled(usable.at(i));
        if (!usable.at(i)) input.field->clear();
    }
}

std::array<std::string, kParameters> ParameterFields::Texts() const {
    std::array<std::string, kParameters> texts;
    for (std::size_t i = 0; i < kParameters; ++i) texts.at(i) = inputs_.at(i).field->text().toStdString();
    return texts;
}

}  // namespace tallix
