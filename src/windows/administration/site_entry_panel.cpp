#include "windows/administration/site_entry_panel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "toolkit/style.h"
#include "toolkit/text.h"

namespace tallix {
namespace {

constexpr int kInputWidth = 28 * toolkit::kGrid;

}  // namespace

SiteEntryPanel::SiteEntryPanel(QWidget& window)
    : EntryPanel(window),
      included_(new QCheckBox("Include Site In Collector Service")),
      mapping_(new QComboBox),
      thirdPartySystem_(new QComboBox) {
    mapping_->setEditable(true);
    for (const NamedCode& system : kThirdPartySystems)
        thirdPartySystem_->addItem(toolkit::ToQString(system.name));
    auto* columns = new QHBoxLayout;
    columns->setSpacing(toolkit::kMargin);
    columns->addLayout(PlaceColumn());
    columns->addLayout(SwitchColumn());
    AddRow(columns);
    for (const QLineEdit* field : {switchIp_, switchPort_})
        connect(field, &QLineEdit::textChanged, this, &SiteEntryPanel::ShowWhetherIncluded);
    connect(included_, &QCheckBox::clicked, this, &SiteEntryPanel::Include);
}

QLayout* SiteEntryPanel::PlaceColumn() {
    QGridLayout* column = Column();
    AddText(*column, "Site Name:", &SiteRecord::name);
    AddText(*column, "Email:", &SiteRecord::email);
    AddText(*column, "Address:", &SiteRecord::address1);
    AddText(*column, "", &SiteRecord::address2)->setAccessibleName("Address 2");
    AddText(*column, "", &SiteRecord::address3)->setAccessibleName("Address 3");
    AddText(*column, "", &SiteRecord::address4)->setAccessibleName("Address 4");
    AddText(*column, "Postcode:", &SiteRecord::postcode);
    AddText(*column, "Area Code:", &SiteRecord::area);
    AddText(*column, "VM:", &SiteRecord::voicemail);
    return column;
}

QLayout* SiteEntryPanel::SwitchColumn() {
    QGridLayout* column = Column();
    switchIp_ = AddText(*column, "Switch IP:", &SiteRecord::switchIp);
    switchPort_ = AddText(*column, "Switch Port:", &SiteRecord::switchPort);
    AddInputRow(*column, "", included_);
    AddInputRow(*column, "Mappings:", mapping_);
    AddInputRow(*column, "3PT System:", thirdPartySystem_);
    AddText(*column, "3PT Username:", &SiteRecord::thirdPartyUser);
    AddText(*column, "3PT Password:", &SiteRecord::thirdPartyPassword);
    AddText(*column, "3PT Database:", &SiteRecord::thirdPartyName);
    column->setRowStretch(row_, 1);
    return column;
}

QGridLayout* SiteEntryPanel::Column() {
    auto* column = new QGridLayout;
    column->setSpacing(toolkit::kSpacing);
    row_ = 0;
    return column;
}

QLineEdit* SiteEntryPanel::AddText(QGridLayout& column, const QString& label,
                                   std::string SiteRecord::*value) {
    auto* field = new QLineEdit;
    texts_.emplace_back(field, value);
    AddInputRow(column, label, field);
    return field;
}

void SiteEntryPanel::AddInputRow(QGridLayout& column, const QString& label, QWidget* input) {
    input->setParent(this);
    input->setMinimumWidth(kInputWidth);
    if (lastInput_ != nullptr) setTabOrder(lastInput_, input);
    lastInput_ = input;
    column.addWidget(input, row_, 1);
    const int row = row_++;
    if (label.isEmpty()) return;
    auto* words = new QLabel(label, this);
    words->setBuddy(input);
    column.addWidget(words, row, 0);
}

void SiteEntryPanel::OpenFor(const SiteRecord& site, const std::vector<std::string>& customMappings) {
    id_ = site.id;
    leftOutIp_.clear();
    leftOutPort_.clear();
    for (const auto& [field, value] : texts_) field->setText(toolkit::ToQString(site.*value));
    ShowWhetherIncluded();
    mapping_->clear();
    for (const NamedCode& mapping : kBuiltInMappings) mapping_->addItem(toolkit::ToQString(mapping.name));
    for (const std::string& name : customMappings) mapping_->addItem(toolkit::ToQString(name));
    mapping_->setCurrentText(toolkit::ToQString(site.switchMapping));
    thirdPartySystem_->setCurrentText(toolkit::ToQString(ThirdPartySystem(site.thirdPartyDatabase)));
    Open("Site Data");
}

SiteRecord SiteEntryPanel::Entered() const {
    SiteRecord site{.id = id_};
    for (const auto& [field, value] : texts_) site.*value = field->text().toStdString();
    site.switchMapping = mapping_->currentText().toStdString();
    site.systemCode = SystemCode(site.switchMapping);
    site.thirdPartyDatabase = ThirdPartyCode(thirdPartySystem_->currentText().toStdString());
    return site;
}

// The Collector fetches from the sites that have an address and a port. The box shows that, and
// sets it.
void SiteEntryPanel::ShowWhetherIncluded() {
    included_->setChecked(!switchIp_->text().isEmpty() || !switchPort_->text().isEmpty());
}

void SiteEntryPanel::Include(bool included) {
    if (!included) {
        leftOutIp_ = switchIp_->text();
        leftOutPort_ = switchPort_->text();
    }
    switchIp_->setText(included ? leftOutIp_ : QString());
    switchPort_->setText(included ? leftOutPort_ : QString());
    included_->setChecked(included);
    if (included) switchIp_->setFocus();
}

}  // namespace tallix
