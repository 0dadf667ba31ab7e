#include "windows/backup/backup_frame.h"

#include "toolkit/label.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

constexpr int kFieldWidth = 30 * toolkit::kGrid;

}  // namespace

BackupFrame::BackupFrame(const QString& title)
    : QGroupBox(title), rows_(new QVBoxLayout(this)), fields_(new QGridLayout) {
    fields_->setHorizontalSpacing(2 * toolkit::kSpacing);
    fields_->setVerticalSpacing(toolkit::kSpacing);
    rows_->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    rows_->setSpacing(toolkit::kSpacing);
    rows_->addLayout(fields_);
}

void BackupFrame::AddChoices(std::span<const BackupChoice> choices, QPushButton& begin) {
    rows_->addSpacing(toolkit::kSpacing);
    for (const BackupChoice& choice : choices) {
        auto* box = new QCheckBox(choice.caption);
        box->setToolTip(choice.tip);
        rows_->addWidget(box);
        boxes_.push_back({choice, box});
    }
    rows_->addStretch();
    rows_->addSpacing(toolkit::kSpacing);
    rows_->addWidget(&begin, 0, Qt::AlignRight);
}

QLineEdit* BackupFrame::AddField(const QString& label, const QString& tip, QPushButton* button) {
    auto* field = new QLineEdit(this);
    field->setToolTip(tip);
    field->setMinimumWidth(kFieldWidth);
    const int row = fields_->rowCount();
    fields_->addWidget(toolkit::LabelOf(label, field), row, 0);
    fields_->addWidget(field, row, 1);
    if (button != nullptr) fields_->addWidget(button, row, 2);
    return field;
}

void BackupFrame::ApplyRights(const AccessRights& access) {
    for (const auto& [choice, box] : boxes_) box->setVisible(Allows(access, choice.right));
}

std::set<BackupGroup> BackupFrame::Chosen() const {
    std::set<BackupGroup> groups;
    for (const auto& [choice, box] : boxes_) {
        if (box->isChecked()) groups.insert(choice.group);
    }
    return groups;
}

}  // namespace tallix
