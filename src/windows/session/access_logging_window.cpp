#include "windows/session/access_logging_window.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "toolkit/button_row.h"
#include "toolkit/form_names.h"
#include "toolkit/forms.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

/// The text of a row at a place.
auto Cell(std::size_t place) {
    return [place](const AccessLogRow& row) { return row.at(place); };
}

}  // namespace

AccessLoggingWindow::AccessLoggingWindow(toolkit::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - Access Logging"),
      application_(application),
      log_(new toolkit::RecordModel<AccessLogRow>(
          {{"Date", Cell(0), 1000},
           {"Time", Cell(1), 900, Qt::AlignHCenter},
           {"User", Cell(2), toolkit::kPlainColumnWidth, Qt::AlignHCenter},
           {"Description", Cell(3), 5330}},
          this)),
      list_(new toolkit::ListView(*log_, this)) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    rows->setSpacing(toolkit::kSpacing * 2);
    auto* purpose =
        new QLabel("This screen shows all items in the access log created by the reporting tool.", this);
    rows->addWidget(purpose);
    rows->addWidget(ListFrame(), 1);
    rows->addLayout(ButtonRow());
    resize(sizeHint());  // all columns, even where the desktop would offer less
}

QWidget* AccessLoggingWindow::ListFrame() {
    auto* frame = new QGroupBox("Access Log", this);
    list_->setAccessibleName(frame->title());
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(toolkit::kSpacing, toolkit::kSpacing, toolkit::kSpacing, toolkit::kSpacing);
    inside->addWidget(list_);
    return frame;
}

QLayout* AccessLoggingWindow::ButtonRow() {
    auto* exportLog = Button("Export Log");
    auto* clearLog = Button("Clear Log");
    auto* exit = Button("Exit Logging Screen");
    exit->setToolTip("Close and save changes");
    exit->setShortcut(Qt::Key_Escape);
    connect(exportLog, &QPushButton::clicked, this,
            [this] { ExportAccessLog(application_.session, application_.folder); });
    // The list keeps its rows until the window is opened again.
    connect(clearLog, &QPushButton::clicked, this,
            [this] { ClearAccessLog(application_.session, application_.clock); });
    connect(exit, &QPushButton::clicked, this, &AccessLoggingWindow::Unload);
    return toolkit::ButtonRow({exportLog, clearLog}, {exit});
}

QPushButton* AccessLoggingWindow::Button(const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setAutoDefault(true);
    return button;
}

void AccessLoggingWindow::OnLoad() {
    log_->Set(ReadAccessLog(application_.session));
}

void AccessLoggingWindow::OnUnload() {
    OtherForms().Show(kOptionsForm);
}

}  // namespace tallix
