#include "windows/session/settings_required_window.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "startup/settings_required.h"
#include "toolkit/form_names.h"
#include "toolkit/forms.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

constexpr int kFieldWidth = 36 * toolkit::kGrid;
constexpr QRgb kPassed = qRgb(0, 255, 0);
constexpr QRgb kFailed = qRgb(255, 0, 0);

}  // namespace

SettingsRequiredWindow::SettingsRequiredWindow(toolkit::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - Settings Required"),
      application_(application),
      address_(new QLineEdit(this)),
      test_(new QPushButton("TEST", this)),
      result_(new QLabel(this)),
      save_(new QPushButton("Save Changes", this)),
      exit_(new QPushButton("Exit Application", this)) {
    MakeInputs();
    MakeButtons();
    ArrangeRows();
}

void SettingsRequiredWindow::MakeInputs() {
    address_->setToolTip("Enter an IP address");
    address_->setMinimumWidth(kFieldWidth);
    result_->setObjectName("Result");
    QFont bold = result_->font();
    bold.setBold(true);
    result_->setFont(bold);
    connect(address_, &QLineEdit::returnPressed, this, &SettingsRequiredWindow::TestAddress);
}

void SettingsRequiredWindow::MakeButtons() {
    test_->setToolTip("Click here to test this IP");
    save_->setToolTip("Click here to save your changes");
    save_->setEnabled(false);
    exit_->setToolTip("Click here to exit");
    exit_->setShortcut(Qt::Key_Escape);
    for (QPushButton* button : {test_, save_, exit_}) button->setAutoDefault(true);
    connect(test_, &QPushButton::clicked, this, &SettingsRequiredWindow::TestAddress);
    connect(save_, &QPushButton::clicked, this, &SettingsRequiredWindow::SaveChanges);
    connect(exit_, &QPushButton::clicked, this, &SettingsRequiredWindow::Unload);
}

void SettingsRequiredWindow::ArrangeRows() {
    auto* label = new QLabel("Tallix Database IP Address:", this);
    label->setBuddy(address_);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    rows->setSpacing(toolkit::kSpacing);
    rows->addWidget(label);
    rows->addLayout(AddressRow());
    rows->addSpacing(toolkit::kSpacing * 2);
    rows->addLayout(ButtonRow());
    rows->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* SettingsRequiredWindow::AddressRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing);
    row->addWidget(address_, 1);
    row->addWidget(test_);
    return row;
}

QLayout* SettingsRequiredWindow::ButtonRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing);
    row->addWidget(result_, 1);
    row->addWidget(save_);
    row->addWidget(exit_);
    return row;
}

// Typing after a pass changes nothing: the result and the button stay as they are.
void SettingsRequiredWindow::TestAddress() {
    const bool passed = IsDatabaseAddress(address_->text().toStdString());
    save_->setEnabled(passed);
    result_->setText(passed ? "PASSED!" : "FAILED!");
    QPalette colours = result_->palette();
    colours.setColor(QPalette::WindowText, QColor(passed ? kPassed : kFailed));
    result_->setPalette(colours);
}

// The login opens even when folders are missing and this window has been unloaded.
void SettingsRequiredWindow::SaveChanges() {
    SaveDatabaseAddress(application_, address_->text().toStdString(), [this] { Unload(); });
    OtherForms().Load(kLoginForm);
    Unload();
    OtherForms().Show(kLoginForm);
}

}  // namespace tallix
