#include "windows/session/login_window.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <chrono>
#include <utility>

#include "toolkit/artwork.h"
#include "toolkit/button_row.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/main_menu_form.h"
#include "toolkit/style.h"
#include "toolkit/unload_orders.h"

namespace tallix {
namespace {

constexpr int kInnerWidth = 44 * toolkit::kGrid;
constexpr int kProgressMaximum = 31;
constexpr std::chrono::milliseconds kProgressInterval{100};
constexpr std::size_t kMessageColour = 1;

constexpr char kHeldBack[] = "No database or database server not found!";
constexpr char kRefused[] = "Your access details were incorrect!";
constexpr char kExhausted[] =
    "You have made three incorrect login attempts. Please contact your administrator to confirm your access "
    "details.";

void KeepPlaceWhileHidden(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
    widget.hide();
}

// Keys that add text to a field or remove it. Enter and Escape count as well.
bool IsTyped(const QKeyEvent& key) {
    return !key.text().isEmpty() && key.key() != Qt::Key_Tab && key.key() != Qt::Key_Delete;
}

}  // namespace

LoginWindow::LoginWindow(toolkit::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - Login"),
      application_(application),
      login_(application),
      userName_(new QLineEdit(this)),
      password_(new QLineEdit(this)),
      message_(new QLabel(this)),
      progressFrame_(new QFrame(this)),
      progressBar_(new QProgressBar(progressFrame_)),
      loginButton_(new QPushButton("Login To Reports", this)),
      exitButton_(new QPushButton("Exit Application", this)) {
    MakeInputs();
    MakeMessages();
    MakeButtons();
    ArrangeRows();
    progressTimer_.setInterval(kProgressInterval);
    connect(&progressTimer_, &QTimer::timeout, this, &LoginWindow::ShowProgress);
}

void LoginWindow::MakeInputs() {
    userName_->setToolTip("Enter a username");
    password_->setToolTip("Enter a password");
    password_->setEchoMode(QLineEdit::Password);
    for (QLineEdit* field : {userName_, password_}) field->installEventFilter(this);
    connect(password_, &QLineEdit::returnPressed, this, &LoginWindow::LogIn);
}

void LoginWindow::MakeMessages() {
    message_->setObjectName("Message");
    QPalette colours = message_->palette();
    colours.setColor(QPalette::WindowText, QColor(toolkit::kEntryColours.at(kMessageColour)));
    message_->setPalette(colours);
    auto* text = new QLabel("Connecting, Please Wait...", progressFrame_);
    text->setBuddy(progressBar_);
    progressFrame_->setObjectName("Progress");
    progressBar_->setMaximum(kProgressMaximum);
    progressBar_->setTextVisible(false);
    progressBar_->setFixedHeight(toolkit::kGrid);
    auto* rows = new QVBoxLayout(progressFrame_);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(toolkit::kSpacing);
    rows->addWidget(text);
    rows->addWidget(progressBar_);
    KeepPlaceWhileHidden(*message_);
    KeepPlaceWhileHidden(*progressFrame_);
}

void LoginWindow::MakeButtons() {
    loginButton_->setToolTip("Click here to login");
    loginButton_->setEnabled(false);
    exitButton_->setToolTip("Click here to exit");
    connect(loginButton_, &QPushButton::clicked, this, &LoginWindow::LogIn);
    connect(exitButton_, &QPushButton::clicked, this, &LoginWindow::Exit);
    new toolkit::DialogKeys(*this, nullptr, exitButton_);
}

void LoginWindow::ArrangeRows() {
    auto* rows = new QVBoxLayout(this);
    rows->addStrut(kInnerWidth);
    rows->setContentsMargins(toolkit::kMargin * 2, toolkit::kMargin + toolkit::kSpacing, toolkit::kMargin * 2,
                             toolkit::kMargin);
    rows->setSpacing(toolkit::kSpacing * 2);
    rows->addLayout(TitleRow());
    rows->addSpacing(toolkit::kSpacing);
    rows->addLayout(InputRows());
    rows->addWidget(message_);
    rows->addWidget(progressFrame_);
    rows->addLayout(ButtonRow());
    rows->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* LoginWindow::TitleRow() {
    auto* subtitle = new QLabel("Reports Tool", this);
    toolkit::MakeSubheading(*subtitle);
    return toolkit::ProductTitle(this, "Tallix", subtitle);
}

QLayout* LoginWindow::InputRows() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(toolkit::kSpacing * 2);
    grid->setVerticalSpacing(toolkit::kSpacing);
    int row = 0;
    for (const auto& [text, field] : {std::pair("Username:", userName_), {"Password:", password_}}) {
        auto* label = new QLabel(text, this);
        label->setBuddy(field);
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row++, 1);
    }
    return grid;
}

QLayout* LoginWindow::ButtonRow() {
    return toolkit::ButtonRow({}, {loginButton_, exitButton_});
}

void LoginWindow::OnUnload() {
    progressTimer_.stop();
}

// A login serves events while it runs, and needs its window afterwards.
void LoginWindow::closeEvent(QCloseEvent* event) {
    if (checking_) return event->ignore();
    Form::closeEvent(event);
}

// The button follows the text before the key, so it lags by one key, and the field that
// was typed in last decides.
bool LoginWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto* field = qobject_cast<QLineEdit*>(watched);
    if (field != nullptr && event->type() == QEvent::KeyPress && IsTyped(*static_cast<QKeyEvent*>(event))) {
        loginButton_->setEnabled(!field->text().isEmpty());
    }
    return Form::eventFilter(watched, event);
}

void LoginWindow::LogIn() {
    SetChecking(true);
    application_.events.Serve();
    const LoginOutcome outcome = login_.Try(userName_->text().toStdString(), password_->text().toStdString());
    if (outcome == LoginOutcome::LoggedIn) return OpenSession();
    if (outcome == LoginOutcome::Refused) return Refuse();
    AskAgain(kHeldBack);
    login_.Close();
}

void LoginWindow::SetChecking(bool checking) {
    checking_ = checking;
    for (QWidget* input : {static_cast<QWidget*>(userName_), static_cast<QWidget*>(password_),
                           static_cast<QWidget*>(loginButton_), static_cast<QWidget*>(exitButton_)}) {
        input->setEnabled(!checking);
    }
    progressFrame_->setVisible(checking);
    if (!checking) return progressTimer_.stop();
    progressBar_->setValue(0);
    progressTimer_.start();
}

void LoginWindow::ShowProgress() {
    progressBar_->setValue(progress_);
    application_.events.Serve();
    progress_ = progress_ == kProgressMaximum ? 0 : progress_ + 1;
}

void LoginWindow::OpenSession() {
    OtherForms().Load(toolkit::MainMenuForm(application_.session));
    login_.Close();
    Unload();
    toolkit::ShowMainMenu(OtherForms(), application_.session);
    application_.events.Serve();
}

void LoginWindow::Refuse() {
    AskAgain(kRefused);
    login_.Close();
    if (!login_.IsExhausted()) return;
    application_.prompts.Show({"Incorrect Login", kExhausted, MessageIcon::Critical});
    Unload();
}

void LoginWindow::AskAgain(const QString& message) {
    message_->setText(message);
    message_->show();
    SetChecking(false);
    password_->clear();
    password_->setFocus();
}

void LoginWindow::Exit() {
    toolkit::UnloadInOrder(OtherForms(), toolkit::kLoginExitOrder);
}

}  // namespace tallix
