#include "windows/reporting/output_frame.h"

#include <QGridLayout>

#include "reporting/external_applications.h"
#include "toolkit/style.h"
#include "toolkit/text.h"
#include "windows/reporting/input_text.h"

namespace tallix {

OutputFrame::OutputFrame()
    : QGroupBox("Output Report"),
      onScreen_(new QRadioButton("On Screen")),
      toPrinter_(new QRadioButton("To Printer")),
      inApplication_(new QRadioButton("In External Application")),
      printers_(new QComboBox),
      applications_(new QComboBox) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(toolkit::kSpacing * 2, toolkit::kSpacing * 2, toolkit::kSpacing * 2,
                             toolkit::kSpacing * 2);
    grid->setHorizontalSpacing(toolkit::kSpacing * 2);
    grid->setVerticalSpacing(toolkit::kSpacing);
    grid->addWidget(onScreen_, 0, 0);
    grid->addWidget(toPrinter_, 1, 0);
    grid->addWidget(printers_, 1, 1);
    grid->addWidget(inApplication_, 2, 0);
    grid->addWidget(applications_, 2, 1);
    grid->setColumnStretch(1, 1);
    printers_->setAccessibleName(toPrinter_->text());
    applications_->setAccessibleName(inApplication_->text());
    for (const QRadioButton* option : {onScreen_, toPrinter_, inApplication_}) {
        connect(option, &QRadioButton::toggled, this, &OutputFrame::EnableLists);
    }
    onScreen_->setChecked(true);
}

// No printer and no application is chosen before the person does it.
void OutputFrame::Fill(const toolkit::Printers& printers, const SettingsStore& settings) {
    printers_->addItems(toolkit::ToQStringList(printers.Names()));
    applications_->addItems(toolkit::ToQStringList(ExternalApplications(settings)));
    for (QComboBox* list : {printers_, applications_}) list->setCurrentIndex(-1);
}

DestinationChoice OutputFrame::Choice() const {
    DestinationChoice choice = {.printer = TextOf(*printers_), .application = TextOf(*applications_)};
    if (toPrinter_->isChecked()) choice.destination = Destination::ToPrinter;
    if (inApplication_->isChecked()) choice.destination = Destination::InExternalApplication;
    return choice;
}

void OutputFrame::Choose(Destination destination, const std::string& application) {
    QRadioButton* const options[] = {onScreen_, toPrinter_, inApplication_};
    options[static_cast<std::size_t>(destination)]->setChecked(true);
    applications_->setCurrentIndex(applications_->findText(toolkit::ToQString(application)));
}

void OutputFrame::EnableLists() {
    printers_->setEnabled(toPrinter_->isChecked());
    applications_->setEnabled(inApplication_->isChecked());
}

}  // namespace tallix
