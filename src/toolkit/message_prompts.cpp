#include "toolkit/message_prompts.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <algorithm>

namespace tallix::toolkit {
namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Information:
            return QMessageBox::Information;
        case MessageIcon::Question:
            return QMessageBox::Question;
        case MessageIcon::Exclamation:
            return QMessageBox::Warning;
        case MessageIcon::Critical:
            return QMessageBox::Critical;
        case MessageIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
    return buttons == MessageButtons::YesNo ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok;
}

// A question that is closed without a button counts as No.
Answer AnswerOf(int button, MessageButtons buttons) {
    if (buttons == MessageButtons::Ok) return Answer::Ok;
    return button == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

QString FilterOf(const FileQuestion& question) {
    return QString::fromStdString(question.filterLabel + " (" + question.filterPattern + ")");
}

std::optional<std::filesystem::path> Chosen(const QString& path) {
    if (path.isEmpty()) return std::nullopt;
    return std::filesystem::path(path.toStdString());
}

// The active window. For a moment after a panel has closed none is active.
QWidget* Owner() {
    if (QWidget* active = QApplication::activeWindow()) return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto shown = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isVisible() && window->windowType() == Qt::Window;
    });
    return shown == windows.end() ? nullptr : *shown;
}

}  // namespace

Answer MessagePrompts::Show(const Message& message) {
    QMessageBox box(IconOf(message.icon), QString::fromStdString(message.title),
                    QString::fromStdString(message.text), ButtonsOf(message.buttons), Owner());
    box.setTextFormat(Qt::PlainText);
    return AnswerOf(box.exec(), message.buttons);
}

std::optional<std::filesystem::path> MessagePrompts::AskOpenFile(const FileQuestion& question) {
    return Chosen(QFileDialog::getOpenFileName(Owner(), QString::fromStdString(question.title), {},
                                               FilterOf(question)));
}

std::optional<std::filesystem::path> MessagePrompts::AskSaveFile(const FileQuestion& question) {
    return Chosen(QFileDialog::getSaveFileName(Owner(), QString::fromStdString(question.title), {},
                                               FilterOf(question)));
}

std::optional<std::filesystem::path> MessagePrompts::AskFolder(const std::string& title) {
    return Chosen(QFileDialog::getExistingDirectory(Owner(), QString::fromStdString(title)));
}

std::optional<Colour> MessagePrompts::AskColour(const std::string& title) {
    const QColor colour = QColorDialog::getColor(Qt::white, Owner(), QString::fromStdString(title));
    if (!colour.isValid()) return std::nullopt;
    return Colour{colour.red(), colour.green(), colour.blue()};
}

}  // namespace tallix::toolkit
