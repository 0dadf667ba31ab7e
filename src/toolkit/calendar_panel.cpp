#include "toolkit/calendar_panel.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

#include "toolkit/style.h"

namespace tallix::toolkit {
namespace {

// The texts of the program are English, whatever the desktop's language.
QLocale Texts() {
    return {QLocale::English, QLocale::UnitedKingdom};
}

QToolButton* MonthButton(Qt::ArrowType arrow, const QString& tip) {
    auto* button = new QToolButton;
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    return button;
}

}  // namespace

CalendarPanel::CalendarPanel(QWidget* parent)
    : QFrame(parent, Qt::Popup), calendar_(new QCalendarWidget(this)), month_(new QLabel(this)) {
    setFrameShape(QFrame::StyledPanel);
    calendar_->setLocale(Texts());
    calendar_->setNavigationBarVisible(false);
    calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar_->setToolTip("Click a day to select it");
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kSpacing, kSpacing, kSpacing, kSpacing);
    rows->setSpacing(kSpacing);
    rows->addLayout(MonthRow());
    rows->addWidget(calendar_);
    connect(calendar_, &QCalendarWidget::currentPageChanged, this, &CalendarPanel::ShowMonth);
    connect(calendar_, &QCalendarWidget::clicked, this, &CalendarPanel::Choose);
    connect(calendar_, &QCalendarWidget::activated, this, &CalendarPanel::Choose);
}

QLayout* CalendarPanel::MonthRow() {
    QToolButton* back = MonthButton(Qt::LeftArrow, "Go back one month");
    QToolButton* forward = MonthButton(Qt::RightArrow, "Go forward one month");
    connect(back, &QToolButton::clicked, calendar_, &QCalendarWidget::showPreviousMonth);
    connect(forward, &QToolButton::clicked, calendar_, &QCalendarWidget::showNextMonth);
    month_->setAlignment(Qt::AlignCenter);
    auto* row = new QHBoxLayout;
    row->addWidget(back);
    row->addWidget(month_, 1);
    row->addWidget(forward);
    return row;
}

void CalendarPanel::ShowMonth(int year, int month) {
    month_->setText(Texts().standaloneMonthName(month) + " " + QString::number(year));
}

void CalendarPanel::Open(const QDate& today, const QWidget& anchor) {
    calendar_->setSelectedDate(today);
    calendar_->setCurrentPage(today.year(), today.month());
    ShowMonth(today.year(), today.month());
    adjustSize();
    const QRect screen = anchor.screen()->availableGeometry();
    QPoint corner = anchor.mapToGlobal(QPoint(anchor.width() - width(), anchor.height()));
    corner.setX(qBound(screen.left(), corner.x(), qMax(screen.left(), screen.right() - width())));
    corner.setY(qBound(screen.top(), corner.y(), qMax(screen.top(), screen.bottom() - height())));
    move(corner);
    show();
    calendar_->setFocus();
}

// A day that is chosen with Enter is reported twice; the second time the panel is hidden.
void CalendarPanel::Choose(const QDate& day) {
    if (!isVisible()) return;
    hide();
    emit DayClicked(day);
}

}  // namespace tallix::toolkit
