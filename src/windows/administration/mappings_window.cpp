#include "windows/administration/mappings_window.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <functional>

#include "toolkit/dialog_keys.h"
#include "toolkit/form_names.h"
#include "toolkit/forms.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

constexpr char kCreateNew[] = "<Create New>";
constexpr char kNothingSelected[] = "Drag over the characters of an item to select them.";

constexpr int kListTwips = 1440;
constexpr int kSampleWidth = 88 * toolkit::kGrid;
constexpr int kSampleHeight = 6 * toolkit::kGrid;
constexpr int kNameWidth = 36 * toolkit::kGrid;
constexpr int kItemRows = 5;
constexpr int kItemWidth = 5;  ///< in columns of the grid, the gap after it included

std::string TextOf(const QLineEdit& box) {
    return box.text().toStdString();
}

QLabel* Labelled(const QString& text, QWidget* input) {
    auto* label = new QLabel(text);
    label->setBuddy(input);
    return label;
}

QHBoxLayout* Row() {
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing);
    return row;
}

}  // namespace

MappingsWindow::MappingsWindow(toolkit::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - Custom Mappings"),
      application_(application),
      lines_(application),
      list_(*new RecordList<std::string>("Mappings", {{"Mapping", std::identity(), kListTwips}}, *this)),
      selection_(new QLabel(kNothingSelected, this)) {
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    columns->setSpacing(toolkit::kMargin);
    columns->addLayout(ListColumn());
    columns->addLayout(MappingColumn(), 1);
    importer_ = new ImporterPanel(*this, application);
    new toolkit::DialogKeys(*this, nullptr, nullptr);
}

QPushButton* MappingsWindow::Button(const QString& caption, void (MappingsWindow::*onClick)()) {
    auto* button = new QPushButton(caption, this);
    connect(button, &QPushButton::clicked, this, onClick);
    return button;
}

QLayout* MappingsWindow::ListColumn() {
    list_.View().setFixedWidth(list_.View().sizeHint().width());
    list_.PressOnActivation(
        list_.AddButton({"Select", "", ActsOn::Record, Side::Left}, [this] { SelectMapping(); }));
    QPushButton& remove =
        list_.AddButton({.caption = "Delete", .actsOn = ActsOn::Record}, [this] { DeleteSelected(); });
    connect(&list_, &ButtonedList::SelectionMoved, &remove,
            [this, &remove] { remove.setEnabled(IsMappingSelected()); });
    auto* importer = new QPushButton("Importer", this);
    connect(importer, &QPushButton::clicked, this, [this] { importer_->OpenStored(); });
    QBoxLayout* rows = list_.Layout(Heading::Hidden);
    rows->addWidget(importer);
    return rows;
}

QLayout* MappingsWindow::MappingColumn() {
    auto* rows = new QVBoxLayout;
    rows->setSpacing(toolkit::kSpacing * 2);
    rows->addLayout(NameRow());
    rows->addLayout(SampleRow());
    rows->addWidget(sample_);
    rows->addLayout(SelectionRow());
    rows->addLayout(Items());
    rows->addStretch();
    rows->addLayout(ButtonRow());
    return rows;
}

QLayout* MappingsWindow::NameRow() {
    name_ = new QLineEdit(this);
    name_->setMinimumWidth(kNameWidth);
    auto* row = Row();
    row->addWidget(Labelled("Mapping Name:", name_));
    row->addWidget(name_);
    row->addStretch();
    return row;
}

QLayout* MappingsWindow::SampleRow() {
    site_ = new QComboBox(this);
    for (const std::string_view site : kSampleSites) site_->addItem(QString::fromUtf8(site.data()));
    site_->setCurrentIndex(-1);
    auto* label = new QLabel("Sample:");
    auto* row = Row();
    row->addWidget(label);
    row->addStretch();
    row->addWidget(Labelled("Site:", site_));
    row->addWidget(site_);
    row->addWidget(Button("Get Data", &MappingsWindow::GetData));
    for (const auto& [sign, name, direction] :
         {std::tuple("<", "Previous Line", Direction::Back), {">", "Next Line", Direction::Forward}}) {
        auto* button = new QPushButton(sign, this);
        button->setAccessibleName(name);
        button->setToolTip(name);
        connect(button, &QPushButton::clicked, this,
                [this, direction = direction] { StepSample(direction); });
        row->addWidget(button);
    }
    MakeSampleBox();
    label->setBuddy(sample_);
    return row;
}

// The text is read-only. The window works on its selection, which stays visible when another
// input has the focus.
void MappingsWindow::MakeSampleBox() {
    sample_ = new QPlainTextEdit(this);
    sample_->setReadOnly(true);
    sample_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    sample_->setLineWrapMode(QPlainTextEdit::NoWrap);
    sample_->setTabChangesFocus(true);
    sample_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    sample_->setMinimumWidth(kSampleWidth);
    sample_->setFixedHeight(kSampleHeight);
    QPalette colours = sample_->palette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText})
        colours.setColor(QPalette::Inactive, role, colours.color(QPalette::Active, role));
    sample_->setPalette(colours);
    connect(sample_, &QPlainTextEdit::selectionChanged, this, &MappingsWindow::ShowSelection);
}

QLayout* MappingsWindow::SelectionRow() {
    toolkit::MakeQuiet(*selection_);
    auto* row = Row();
    row->addWidget(selection_, 1);
    row->addWidget(Button("Map To Field", &MappingsWindow::MapSelection));
    return row;
}

/// Down the first column, then down the next, under the headings of the boxes.
QGridLayout* MappingsWindow::Items() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(toolkit::kSpacing);
    grid->setVerticalSpacing(toolkit::kSpacing);
    for (std::size_t i = 0; i < items_.size(); ++i) {
        const int row = static_cast<int>(i) % kItemRows;
        const int column = static_cast<int>(i) / kItemRows * kItemWidth;
        items_.at(i) = new MappingItemRow(kMappingItems.at(i), *this, *grid, row + 1, column);
        connect(items_.at(i), &MappingItemRow::Chosen, this, [this, i] { ChooseItem(i); });
        if (row > 0) continue;
        grid->addWidget(new QLabel("First"), 0, column + 2, Qt::AlignRight);
        grid->addWidget(new QLabel("Last"), 0, column + 3, Qt::AlignRight);
        if (column > 0) grid->setColumnMinimumWidth(column - 1, toolkit::kMargin);
        if (column > 0) grid->setColumnStretch(column - 1, 1);
    }
    return grid;
}

QLayout* MappingsWindow::ButtonRow() {
    auto* row = Row();
    row->addWidget(Button("Reset Fields", &MappingsWindow::ResetFields));
    row->addStretch();
    row->addWidget(Button("Save Mapping", &MappingsWindow::SaveFields));
    return row;
}

void MappingsWindow::OnLoad() {
    FillList();
}

void MappingsWindow::FillList() {
    std::vector<std::string> entries = ReadMappingNames(application_.session);
    entries.insert(entries.begin(), kCreateNew);
    list_.Set(std::move(entries));
}

void MappingsWindow::SelectMapping() {
    if (!IsMappingSelected()) {
        name_->clear();
        name_->setFocus();
        return;
    }
    const std::optional<Mapping> mapping = ReadMapping(application_.session, *list_.Selected());
    if (!mapping) return;
    name_->setText(QString::fromStdString(mapping->name));
    for (std::size_t i = 0; i < items_.size(); ++i) items_.at(i)->Show(mapping->items.at(i));
}

void MappingsWindow::DeleteSelected() {
    DeleteMapping(application_.session, *list_.Selected());
    list_.RemoveSelected();
}

void MappingsWindow::ShowSample(const std::optional<std::string>& line) {
    if (line) sample_->setPlainText(QString::fromStdString(*line));
}

void MappingsWindow::GetData() {
    ShowSample(lines_.First(site_->currentText().toStdString()));
}

void MappingsWindow::StepSample(Direction direction) {
    ShowSample(lines_.Step(site_->currentText().toStdString(), direction));
}

void MappingsWindow::ShowSelection() {
    const QTextCursor cursor = sample_->textCursor();
    const QString text = QString("Characters %1 to %2 are selected.")
                             .arg(cursor.selectionStart() + 1)
                             .arg(cursor.selectionEnd());
    selection_->setText(cursor.hasSelection() ? text : kNothingSelected);
}

void MappingsWindow::ChooseItem(std::size_t item) {
    current_ = item;
    for (std::size_t i = 0; i < items_.size(); ++i) items_.at(i)->SetCurrent(i == item);
}

void MappingsWindow::MapSelection() {
    const QTextCursor cursor = sample_->textCursor();
    if (!cursor.hasSelection() || current_ == items_.size()) return;
    const int start = cursor.selectionStart();
    const int length = cursor.selectionEnd() - start;
    items_.at(current_)->Show(MapToField(kMappingItems.at(current_), start, length).value_or(Positions{}));
}

void MappingsWindow::ResetFields() {
    for (MappingItemRow* item : items_) item->Show({});
}

void MappingsWindow::SaveFields() {
    Mapping mapping{TextOf(*name_), {}};
    for (std::size_t i = 0; i < items_.size(); ++i) mapping.items.at(i) = items_.at(i)->Shown();
    if (SaveMapping(application_, mapping)) FillList();
}

void MappingsWindow::OnUnload() {
    OtherForms().Show(kOptionsForm);
}

}  // namespace tallix
