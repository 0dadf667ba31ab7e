// A date that a person types or picks from a calendar, with the check box that names it.
//
//     start_(new toolkit::DateInput("Start Date", application.clock, toolkit::DateBox::FollowsText))
//     row->addWidget(&start_->Box());
//     row->addWidget(start_);
#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <string>

#include "host/clock.h"
#include "toolkit/calendar_panel.h"

namespace tallix::toolkit {

/// What the check box of a date does.
enum class DateBox {
    FollowsText,      ///< it is ticked while the field holds text
    EnablesCalendar,  ///< the calendar can be opened while it is ticked, or after a double click on the field
};

/// The field and the button "..." that opens the calendar.
class DateInput : public QWidget {
    Q_OBJECT
public:
    /// `caption` is the text of the box, and the object name of the input. `clock` says
    /// which day is today and must outlive the input.
    DateInput(const QString& caption, const Clock& clock, DateBox boxRule);

    /// The check box, for a place of its own in the caller's layout. It is ticked whenever a
    /// day has been picked.
    QCheckBox& Box() const { return *box_; }

    /// As typed, or the short date of the day that was picked.
    std::string Text() const { return field_->text().toStdString(); }
    void SetText(const std::string& text);

    QLineEdit& Field() const { return *field_; }
    QPushButton& CalendarButton() const { return *button_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OpenCalendar();
    void TakeDay(const QDate& day);

    const Clock& clock_;
    QCheckBox* box_;
    QLineEdit* field_;
    QPushButton* button_;
    CalendarPanel* calendar_;
};

}  // namespace tallix::toolkit
