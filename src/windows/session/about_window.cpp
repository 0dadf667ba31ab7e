#include "windows/session/about_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "toolkit/artwork.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/main_menu_form.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

constexpr int kWidth = 48 * toolkit::kGrid;

}  // namespace

AboutWindow::AboutWindow(toolkit::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - About"), application_(application) {
    auto* close = new QPushButton("OK", this);
    connect(close, &QPushButton::clicked, this, &AboutWindow::Return);
    auto* top = new QHBoxLayout;
    top->setSpacing(toolkit::kMargin);
    top->addWidget(new toolkit::ProductMark(this), 0, Qt::AlignTop);
    top->addLayout(TextColumn(), 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(toolkit::kMargin * 2, toolkit::kMargin + toolkit::kSpacing, toolkit::kMargin * 2,
                             toolkit::kMargin);
    rows->setSpacing(toolkit::kMargin);
    rows->addLayout(top);
    rows->addWidget(close, 0, Qt::AlignRight);
    setFixedWidth(kWidth);
    new toolkit::DialogKeys(*this, close, close);
    close->setFocus();
}

QLayout* AboutWindow::TextColumn() {
    auto* title = new QLabel("Tallix", this);
    toolkit::MakeHeading(*title);
    auto* subtitle = new QLabel("Reports Tool", this);
    toolkit::MakeSubheading(*subtitle);
    auto* version = new QLabel("Version: " + QString::fromStdString(application_.version.Text()), this);
    version->setObjectName("Version");
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(title);
    column->addWidget(subtitle);
    column->addSpacing(toolkit::kSpacing * 2);
    column->addWidget(version);
    return column;
}

void AboutWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    Return();
}

void AboutWindow::Return() {
    toolkit::ShowMainMenu(OtherForms(), application_.session);
    Unload();
}

}  // namespace tallix
