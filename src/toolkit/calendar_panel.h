// A month calendar next to an input. It closes when a day, or anything else, is clicked.
#pragma once

#include <QCalendarWidget>
#include <QDate>
#include <QFrame>
#include <QLabel>

namespace tallix::toolkit {

class CalendarPanel : public QFrame {
    Q_OBJECT
public:
    explicit CalendarPanel(QWidget* parent);

    /// Shows below `anchor`, with `today` selected.
    void Open(const QDate& today, const QWidget& anchor);

signals:
    /// The panel is hidden by then.
    void DayClicked(const QDate& day);

private:
    QLayout* MonthRow();
    void ShowMonth(int year, int month);
    void Choose(const QDate& day);

    QCalendarWidget* calendar_;
    QLabel* month_;
};

}  // namespace tallix::toolkit
