#include "windows/administration/mapping_item_row.h"

#include <QIntValidator>
#include <QPainter>
#include <utility>

#include "toolkit/style.h"
#include "toolkit/text.h"

namespace tallix {
namespace {

constexpr int kLampSize = 2 * toolkit::kGrid;
constexpr int kBoxWidth = 5 * toolkit::kGrid;
constexpr int kRimDarkness = 150;  ///< per cent
constexpr int kHighestPosition = 9999;

struct LampLook {
    QRgb colour;
    const char* meaning;
};

const LampLook& LookOf(LampState state) {
    static constexpr LampLook looks[] = {
        {qRgb(255, 0, 0), "not mapped"}, {qRgb(255, 255, 0), "being mapped"}, {qRgb(0, 255, 0), "mapped"}};
    return looks[static_cast<std::size_t>(state)];
}

QLineEdit* PositionBox(const QString& name, QWidget& window) {
    auto* box = new QLineEdit(&window);
    box->setAccessibleName(name);
    box->setFixedWidth(kBoxWidth);
    box->setAlignment(Qt::AlignRight);
    box->setValidator(new QIntValidator(1, kHighestPosition, box));
    return box;
}

}  // namespace

Lamp::Lamp(QString item, QWidget* parent) : QWidget(parent), item_(std::move(item)) {
    setFixedSize(kLampSize, kLampSize);
    SetState(LampState::NotMapped);
}

void Lamp::SetState(LampState state) {
    state_ = state;
    const QString meaning = LookOf(state).meaning;
    setAccessibleName(item_ + " " + meaning);
    setToolTip(meaning);
    update();
}

void Lamp::paintEvent(QPaintEvent*) {
    const QColor colour(LookOf(state_).colour);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour.darker(kRimDarkness));
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
}

MappingItemRow::MappingItemRow(const MappingItem& item, QWidget& window, QGridLayout& grid, int row,
                               int column)
    : QObject(&window),
      lamp_(new Lamp(toolkit::ToQString(item.label), &window)),
      name_(new QPushButton(toolkit::ToQString(item.label), &window)),
      start_(PositionBox(toolkit::ToQString(item.label) + " first character", window)),
      finish_(PositionBox(toolkit::ToQString(item.label) + " last character", window)) {
    MakeName();
    grid.addWidget(lamp_, row, column);
    grid.addWidget(name_, row, column + 1, Qt::AlignLeft | Qt::AlignVCenter);
    grid.addWidget(start_, row, column + 2);
    grid.addWidget(finish_, row, column + 3);
    connect(name_, &QPushButton::clicked, this, &MappingItemRow::Chosen);
    for (const QLineEdit* box : {start_, finish_})
        connect(box, &QLineEdit::textEdited, this, &MappingItemRow::FollowTyping);
}

/// As wide as its text in bold, which marks the item that is being mapped.
void MappingItemRow::MakeName() {
    name_->setCheckable(true);
    toolkit::MakeLink(*name_);
    name_->setStyleSheet("text-align: left;");
    QFont bold = name_->font();
    bold.setBold(true);
    name_->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(name_->text()) + toolkit::kGrid);
}

Positions MappingItemRow::Shown() const {
    return {start_->text().toStdString(), finish_->text().toStdString()};
}

void MappingItemRow::Show(const Positions& positions) {
    start_->setText(toolkit::ToQString(positions.start));
    finish_->setText(toolkit::ToQString(positions.finish));
    lamp_->SetState(positions.start.empty() ? LampState::NotMapped : LampState::Mapped);
}

void MappingItemRow::SetCurrent(bool current) {
    name_->setChecked(current);
    QFont font = name_->font();
    font.setBold(current);
    name_->setFont(font);
    if (current) return lamp_->SetState(LampState::BeingMapped);
    if (lamp_->State() != LampState::Mapped) lamp_->SetState(LampState::NotMapped);
}

void MappingItemRow::FollowTyping() {
    const bool mapped = !start_->text().isEmpty() && !finish_->text().isEmpty();
    const LampState unmapped = name_->isChecked() ? LampState::BeingMapped : LampState::NotMapped;
    lamp_->SetState(mapped ? LampState::Mapped : unmapped);
}

}  // namespace tallix
