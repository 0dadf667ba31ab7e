#include "windows/session/main_window.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QUrl>
#include <chrono>

#include "session/logout.h"
#include "toolkit/artwork.h"
#include "toolkit/forms.h"
#include "toolkit/style.h"
#include "toolkit/text.h"
#include "toolkit/unload_orders.h"

namespace tallix {
namespace {

constexpr std::chrono::milliseconds kUpdateDelay{1000};
constexpr int kColumns = 3;
constexpr int kEntryWidth = 22 * toolkit::kGrid;
constexpr int kMenuWidth = kColumns * kEntryWidth + (kColumns - 1) * 2 * toolkit::kSpacing;
constexpr int kMenuHeight = 2 * 17 * toolkit::kGrid + 2 * toolkit::kSpacing;

}  // namespace

MainWindow::MainWindow(toolkit::Forms& forms, Application& application)
    : MainWindow(forms, application, {false, NoUpdatesSetting::Heeded}) {}

MainWindow::MainWindow(toolkit::Forms& forms, Application& application, const Kind& kind)
    : Form(forms, "Tallix Reports Tool - Main"),
      application_(application),
      kind_(kind),
      rows_(new QVBoxLayout(this)),
      middle_(new QHBoxLayout),
      grid_(new QGridLayout),
      connected_(new QLabel(this)) {
    MakeEntries();
    MakeNotice();
    ArrangeRows();
    updateTimer_.setInterval(kUpdateDelay);
    updateTimer_.setSingleShot(true);
    connect(&updateTimer_, &QTimer::timeout, this, &MainWindow::CheckForUpdates);
}

void MainWindow::MakeEntries() {
    for (std::size_t i = 0; i < kMenuEntries.size(); ++i) {
        const MenuEntry& entry = kMenuEntries.at(i);
        const bool hasHoverEffect = entry.right != AccessRight::Export || kind_.exportHasHoverEffect;
        auto* button =
            new toolkit::EntryButton(toolkit::ToQString(entry.label), toolkit::ToQString(entry.picture),
                                     QColor(toolkit::kEntryColours.at(i)), hasHoverEffect, this);
        button->setToolTip(toolkit::ToQString(entry.tooltip));
        connect(button, &QPushButton::clicked, this,
                [this, form = toolkit::ToQString(entry.form)] { Open(form); });
        entries_.push_back(button);
    }
}

void MainWindow::MakeNotice() {
    noticeLabel_ = new QPushButton(this);
    noticeLabel_->setObjectName("UpdateNotice");
    toolkit::MakeLink(*noticeLabel_);
    noticeLabel_->setFocusPolicy(Qt::NoFocus);
    connect(noticeLabel_, &QPushButton::clicked, this, &MainWindow::OpenMakerSite);
}

void MainWindow::ArrangeRows() {
    auto* menu = new QWidget(this);
    menu->setMinimumSize(kMenuWidth, kMenuHeight);
    menu->setLayout(grid_);
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setSpacing(2 * toolkit::kSpacing);
    grid_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    rows_->setContentsMargins(toolkit::kMargin * 2, toolkit::kMargin + toolkit::kSpacing,
                              toolkit::kMargin * 2, toolkit::kMargin);
    rows_->setSpacing(toolkit::kMargin);
    rows_->addLayout(TitleRow());
    middle_->setSpacing(toolkit::kMargin);
    middle_->addWidget(menu, 0, Qt::AlignTop);
    rows_->addLayout(middle_);
    rows_->addWidget(noticeLabel_, 0, Qt::AlignLeft);
    rows_->addLayout(FooterRow());
    rows_->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* MainWindow::TitleRow() {
    connected_->setObjectName("Connected");
    connected_->setTextFormat(Qt::PlainText);
    connected_->setWordWrap(true);
    toolkit::MakeQuiet(*connected_);
    return toolkit::ProductTitle(this, "Reports Tool", connected_);
}

QLayout* MainWindow::FooterRow() {
    auto* about = new QPushButton("About Tallix Reports", this);
    toolkit::MakeLink(*about);
    about->setToolTip("Click here to find out more");
    connect(about, &QPushButton::clicked, this, [this] { Open(kAboutForm); });
    auto* logout = new QPushButton("Logout", this);
    logout->setToolTip("Click here to logout");
    connect(logout, &QPushButton::clicked, this, &MainWindow::LogOut);
    auto* leave = new QPushButton("Exit Reports", this);
    leave->setToolTip("Click here to exit");
    connect(leave, &QPushButton::clicked, this, [this] { ExitReports(); });
    for (QPushButton* button : {logout, leave}) button->setAutoDefault(true);
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing);
    row->addWidget(about);
    row->addStretch();
    row->addWidget(logout);
    row->addWidget(leave);
    return row;
}

// Tab reaches its inputs after the entries to the left of it.
void MainWindow::AddPanel(QWidget& panel) {
    middle_->addWidget(&panel);
    QWidget* before = entries_.back();
    for (QWidget* input : panel.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!(input->focusPolicy() & Qt::TabFocus)) continue;
        setTabOrder(before, input);
        before = input;
    }
}

void MainWindow::OnLoad() {
    connected_->setText(QString::fromStdString(ConnectedLine(application_.session)));
    ArrangeEntries();
    updateTimer_.start();
}

void MainWindow::OnUnload() {
    updateTimer_.stop();
}

// The visible entries leave no gaps between them.
void MainWindow::ArrangeEntries() {
    int place = 0;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const bool shown = Allows(application_.session.CurrentAccess, kMenuEntries.at(i).right);
        entries_.at(i)->setVisible(shown);
        if (!shown) continue;
        grid_->addWidget(entries_.at(i), place / kColumns, place % kColumns);
        ++place;
    }
}

// The menu stays when the form does not exist or unloaded itself while it was loaded.
void MainWindow::Open(const QString& form) {
    OtherForms().Show(form);
    if (OtherForms().Find(form) != nullptr) OtherForms().Hide(objectName());
}

void MainWindow::CheckForUpdates() {
    ShowNotice(CheckForUpdate(application_, kind_.noUpdates));
}

void MainWindow::ShowNotice(const UpdateNotice& notice) {
    notice_ = notice;
    const QColor colour(notice.colour.red, notice.colour.green, notice.colour.blue);
    noticeLabel_->setText(toolkit::ToQString(notice.text));
    noticeLabel_->setStyleSheet(
        QString("color: %1; text-decoration: %2;").arg(colour.name(), notice.newer ? "underline" : "none"));
    noticeLabel_->setFocusPolicy(notice.newer ? Qt::StrongFocus : Qt::NoFocus);
    noticeLabel_->setCursor(notice.newer ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void MainWindow::OpenMakerSite() {
    if (!notice_.newer) return;
    QDesktopServices::openUrl(QUrl(QString::fromStdString(MakerSite(application_.folder))));
}

void MainWindow::LogOut() {
    NoteLoggedOut(application_);
    toolkit::UnloadInOrder(OtherForms(), toolkit::kLogoutOrder);
    OtherForms().Show(kLoginForm);
}

void MainWindow::ExitReports() {
    NoteLoggedOut(application_);
    toolkit::UnloadInOrder(OtherForms(), toolkit::kExitOrder);
    DeleteLeftovers(application_.folder);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    ExitReports();
}

}  // namespace tallix
