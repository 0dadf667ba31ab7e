#include "windows/administration/report_design_page.h"

#include <QHBoxLayout>
#include <QRadioButton>

#include "administration/report_design.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

constexpr std::array<Qt::Alignment, 3> kAlignments = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};

toolkit::ReportPreview::Part PartOf(std::size_t index) {
    return static_cast<toolkit::ReportPreview::Part>(index);
}

QColor ToolkitColour(const Colour& colour) {
    return {colour.red, colour.green, colour.blue};
}

QColor ColourOf(std::string_view digits) {
    return ToolkitColour(ColourOfDigits(digits).value_or(Colour{}));
}

QString DigitsOf(const QColor& colour) {
    const std::uint32_t code = ColourCode({colour.red(), colour.green(), colour.blue()});
    return QString::fromStdString(ColorCodeToRGB(code));
}

}  // namespace

ReportDesignPage::ReportDesignPage(Application& application, QWidget* parent)
    : SettingsPage(application, parent), preview_(new toolkit::ReportPreview) {
    auto* design = new QHBoxLayout;
    design->setSpacing(3 * toolkit::kSpacing);
    design->addLayout(Buttons());
    design->addWidget(preview_, 0, Qt::AlignTop);
    design->addStretch();
    Rows().addLayout(design);
    AddAlignment();
    Rows().addStretch();
}

QLayout* ReportDesignPage::Buttons() {
    auto* column = new QVBoxLayout;
    column->setSpacing(toolkit::kSpacing);
    for (std::size_t i = 0; i < kDesignColours.size(); ++i) {
        QPushButton* button = Button(QString::fromUtf8(kDesignColours.at(i).button.data()));
        connect(button, &QPushButton::clicked, this, [this, i] { Choose(i); });
        column->addWidget(button);
        BindColour(i);
    }
    column->addSpacing(toolkit::kSpacing);
    QPushButton* restore = Button("Restore Defaults");
    connect(restore, &QPushButton::clicked, this, &ReportDesignPage::RestoreDefaults);
    column->addWidget(restore);
    column->addStretch();
    return column;
}

QPushButton* ReportDesignPage::Button(const QString& caption) {
    auto* button = new QPushButton(caption);
    buttons_.append(button);
    return button;
}

void ReportDesignPage::BindColour(std::size_t index) {
    Bind(kDesignColours.at(index).key, {[this, index](const QString& digits) {
                                            preview_->SetColour(PartOf(index),
                                                                ColourOf(digits.toStdString()));
                                        },
                                        [this, index] { return DigitsOf(preview_->Colour(PartOf(index))); }});
}

void ReportDesignPage::AddAlignment() {
    AddPanel("Text Alignment", OptionPanel::Alignment);
    const QList<QRadioButton*>& options = Choices("ReportAlign");
    for (int i = 0; i < options.size(); ++i) {
        connect(options[i], &QRadioButton::toggled, preview_, [this, i](bool chosen) {
            if (chosen) preview_->SetAlignment(kAlignments.at(i));
        });
    }
}

void ReportDesignPage::Choose(std::size_t index) {
    if (const auto colour = ChooseColour(Program().prompts)) {
        preview_->SetColour(PartOf(index), ToolkitColour(*colour));
    }
}

void ReportDesignPage::RestoreDefaults() {
    RestoreDefaultColours(Program().settings);
    for (std::size_t i = 0; i < kDesignColours.size(); ++i) {
        preview_->SetColour(PartOf(i), ColourOf(kDesignColours.at(i).usual));
    }
}

void ReportDesignPage::ApplyRights(const AccessRights& access) {
    for (QPushButton* button : buttons_) button->setEnabled(Allows(access, AccessRight::ReportDesign));
}

bool ReportDesignPage::IsGranted(const AccessRights&) const {
    return true;
}

}  // namespace tallix
