#include "windows/session/splash_window.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

#include "toolkit/form_names.h"
#include "toolkit/forms.h"
#include "toolkit/style.h"
#include "toolkit/text.h"

namespace tallix {
namespace {

constexpr int kWidth = 56 * toolkit::kGrid;
constexpr std::size_t kTickColour = 0;
constexpr double kDotRadius = toolkit::kGrid / 4.0;

}  // namespace

SplashWindow::SplashWindow(toolkit::Forms& forms, Application& application, const std::string& commandLine,
                           UnattendedWork work, std::chrono::milliseconds interval)
    : Form(forms, "Tallix Reports Tool"),
      sequence_(application, commandLine, *this, std::move(work)),
      caption_(new QLabel(this)),
      version_(new QLabel(this)) {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setFixedWidth(kWidth);
    caption_->setObjectName("StepCaption");
    version_->setObjectName("Version");
    toolkit::MakeQuiet(*version_);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(toolkit::kMargin * 2, toolkit::kMargin * 2, toolkit::kMargin * 2,
                             toolkit::kMargin + toolkit::kSpacing);
    rows->setSpacing(0);
    rows->addLayout(TitleRow());
    rows->addSpacing(toolkit::kMargin * 2);
    rows->addLayout(TickRow());
    rows->addSpacing(toolkit::kSpacing * 2);
    rows->addLayout(TextRow());
    timer_.setInterval(interval);
    timer_.setSingleShot(true);  // started anew after each step, so that none runs inside another
    connect(&timer_, &QTimer::timeout, this, &SplashWindow::Advance);
}

QLayout* SplashWindow::TitleRow() {
    auto* subtitle = new QLabel("Reports Tool", this);
    toolkit::MakeSubheading(*subtitle);
    return toolkit::ProductTitle(this, "Tallix", subtitle);
}

QLayout* SplashWindow::TickRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing);
    for (std::size_t step = 0; step < ticks_.size(); ++step) {
        ticks_.at(step) = new toolkit::TickMark(QColor(toolkit::kEntryColours[kTickColour]), this);
        ticks_.at(step)->setObjectName(QString("Tick%1").arg(step + 1));
        ticks_.at(step)->hide();
        row->addWidget(ticks_.at(step));
    }
    row->addStretch();
    return row;
}

QLayout* SplashWindow::TextRow() {
    auto* row = new QHBoxLayout;
    row->addWidget(caption_);
    row->addStretch();
    row->addWidget(version_);
    return row;
}

void SplashWindow::OnLoad() {
    sequence_.Load();
    timer_.start();
}

void SplashWindow::OnUnload() {
    timer_.stop();
}

void SplashWindow::Advance() {
    sequence_.Tick();
    if (!sequence_.HasEnded()) timer_.start();
}

// A hairline in place of a window frame, and a dot where a tick is still to come.
void SplashWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().mid().color());
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().mid());
    for (const toolkit::TickMark* tick : ticks_) {
        painter.drawEllipse(QRectF(tick->geometry()).center(), kDotRadius, kDotRadius);
    }
}

void SplashWindow::ShowVersion(const std::string& text) {
    version_->setText(QString::fromStdString(text));
}

void SplashWindow::ShowSplash() {
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
    show();
}

void SplashWindow::ShowStep(std::string_view caption, int tick) {
    const QString text = toolkit::ToQString(caption);
    caption_->setText(text);
    ticks_.at(tick)->setAccessibleName(text);
    ticks_.at(tick)->show();
}

void SplashWindow::UnloadSplash() {
    Unload();
}

void SplashWindow::ShowSettingsRequired() {
    OtherForms().Show(kSettingsRequiredForm);
}

void SplashWindow::LoadLogin() {
    OtherForms().Load(kLoginForm);
}

void SplashWindow::ShowLogin() {
    OtherForms().Show(kLoginForm);
}

}  // namespace tallix
