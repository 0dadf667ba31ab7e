#include "toolkit/date_input.h"

#include <QEvent>
#include <QHBoxLayout>

#include "text/date_text.h"
#include "toolkit/style.h"
#include "toolkit/text.h"

namespace tallix::toolkit {
namespace {

constexpr int kFieldWidth = 20 * kGrid;

}  // namespace

DateInput::DateInput(const QString& caption, const Clock& clock, DateBox boxRule)
    : clock_(clock),
      box_(new QCheckBox(caption)),
      field_(new QLineEdit),
      button_(new QPushButton("...")),
      calendar_(new CalendarPanel(this)) {
    setObjectName(caption);
    setFocusProxy(field_);
    field_->setAccessibleName(caption);
    field_->setFixedWidth(kFieldWidth);
    button_->setToolTip("Show calendar");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSpacing * 2);
    row->addWidget(field_);
    row->addWidget(button_);
    row->addStretch();
    if (boxRule == DateBox::FollowsText) {
        connect(field_, &QLineEdit::textChanged, box_,
                [this](const QString& text) { box_->setChecked(!text.isEmpty()); });
    } else {
        button_->setEnabled(false);
        field_->installEventFilter(this);
        connect(box_, &QCheckBox::toggled, button_, &QWidget::setEnabled);
    }
    connect(button_, &QPushButton::clicked, this, &DateInput::OpenCalendar);
    connect(calendar_, &CalendarPanel::DayClicked, this, &DateInput::TakeDay);
}

void DateInput::SetText(const std::string& text) {
    field_->setText(ToQString(text));
}

bool DateInput::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick) button_->setEnabled(true);
    return QWidget::eventFilter(watched, event);
}

void DateInput::OpenCalendar() {
    const DateTime now = clock_.Now();
    calendar_->Open(QDate(now.year, now.month, now.day), *field_);
}

// Picking the day that the field already holds changes no text, but still ticks the box.
void DateInput::TakeDay(const QDate& day) {
    SetText(ShortDate({day.year(), day.month(), day.day()}));
    box_->setChecked(true);
}

}  // namespace tallix::toolkit
