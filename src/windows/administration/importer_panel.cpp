#include "windows/administration/importer_panel.h"

#include <QGridLayout>
#include <QIntValidator>
#include <QVBoxLayout>

#include "toolkit/style.h"

namespace tallix {
namespace {

constexpr int kRows = 5;
constexpr int kBoxWidth = 6 * toolkit::kGrid;
constexpr int kLastPlace = 999;

constexpr char kExample[] =
    "Example: 01/01/2011,10:21,00:04:21,1234,,,,\nDate would be 1, time would be 2, etc.";

}  // namespace

ImporterPanel::ImporterPanel(QWidget& window, Application& application)
    : EntryPanel(window),
      application_(application),
      enabled_(new QCheckBox("Enable Importer Service", this)),
      createsCsv_(new QCheckBox("Create CSV File", this)) {
    auto* example = new QLabel(kExample, this);
    toolkit::MakeQuiet(*example);
    AddRow(Switches());
    AddRow(Places());
    AddRow(example);
    SetTabOrders();
    SaveButton().setText("Save Changes");
    connect(this, &EntryPanel::Saved, this, &ImporterPanel::SaveChanges);
}

QLayout* ImporterPanel::Switches() {
    auto* rows = new QVBoxLayout;
    rows->setSpacing(toolkit::kSpacing);
    rows->addWidget(enabled_);
    rows->addWidget(createsCsv_);
    return rows;
}

QGridLayout* ImporterPanel::Places() {
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, toolkit::kSpacing, 0, toolkit::kSpacing);
    grid->setHorizontalSpacing(toolkit::kSpacing * 2);
    grid->setVerticalSpacing(toolkit::kSpacing);
    for (std::size_t value = 0; value < places_.size(); ++value) AddPlace(*grid, value);
    return grid;
}

/// Down the first column, then down the next.
void ImporterPanel::AddPlace(QGridLayout& grid, std::size_t value) {
    const std::string_view label = kImportedValues.at(value).label;
    auto* box = new QLineEdit(this);
    box->setFixedWidth(kBoxWidth);
    box->setAlignment(Qt::AlignRight);
    box->setValidator(new QIntValidator(0, kLastPlace, box));
    auto* words = new QLabel(QString::fromUtf8(label.data(), static_cast<qsizetype>(label.size())), this);
    words->setBuddy(box);
    const int row = static_cast<int>(value) % kRows;
    const int column = static_cast<int>(value) / kRows * 2;
    grid.addWidget(words, row, column);
    grid.addWidget(box, row, column + 1);
    places_.at(value) = box;
}

void ImporterPanel::SetTabOrders() {
    QWidget* last = createsCsv_;
    for (QLineEdit* place : places_) {
        setTabOrder(last, place);
        last = place;
    }
}

void ImporterPanel::OpenStored() {
    const ImporterSettings importer = LoadImporterSettings(application_);
    enabled_->setChecked(importer.enabled);
    createsCsv_->setChecked(importer.createsCsv);
    for (std::size_t value = 0; value < places_.size(); ++value)
        places_.at(value)->setText(QString::fromStdString(importer.places.at(value)));
    Open("Data Items");
}

void ImporterPanel::SaveChanges() {
    ImporterSettings importer{enabled_->isChecked(), createsCsv_->isChecked(), {}};
    for (std::size_t value = 0; value < places_.size(); ++value)
        importer.places.at(value) = places_.at(value)->text().toStdString();
    SaveImporterSettings(application_, importer);
    hide();
}

}  // namespace tallix
