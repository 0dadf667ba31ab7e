#include "shell/about_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/artwork.h"
#include "ui/dialog_keys.h"
#include "ui/main_menu_form.h"
#include "ui/style.h"

namespace tallix {
namespace {

constexpr int kWidth = 48 * ui::kGrid;

}  // namespace

AboutWindow::AboutWindow(ui::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - About"), application_(application) {
    auto* close = new QPushButton("OK", this);
    connect(close, &QPushButton::clicked, this, &AboutWindow::Return);
    auto* top = new QHBoxLayout;
    top->setSpacing(ui::kMargin);
    top->addWidget(new ui::ProductMark(this), 0, Qt::AlignTop);
    top->addLayout(TextColumn(), 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(ui::kMargin * 2, ui::kMargin + ui::kSpacing, ui::kMargin * 2, ui::kMargin);
    rows->setSpacing(ui::kMargin);
    rows->addLayout(top);
    rows->addWidget(close, 0, Qt::AlignRight);
    setFixedWidth(kWidth);
    new ui::DialogKeys(*this, close, close);
    close->setFocus();
}

QLayout* AboutWindow::TextColumn() {
    auto* title = new QLabel("Tallix", this);
    ui::MakeHeading(*title);
    auto* subtitle = new QLabel("Reports Tool", this);
    ui::MakeSubheading(*subtitle);
    auto* version = new QLabel("Version: " + QString::fromStdString(application_.version.Text()), this);
    version->setObjectName("Version");
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(title);
    column->addWidget(subtitle);
    column->addSpacing(ui::kSpacing * 2);
    column->addWidget(version);
    return column;
}

void AboutWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    Return();
}

void AboutWindow::Return() {
    ui::ShowMainMenu(OtherForms(), application_.session);
    Unload();
}

}  // namespace tallix
