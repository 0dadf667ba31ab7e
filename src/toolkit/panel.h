// A dialog that belongs to a page or a window and blocks it while it shows: a heading, and
// below it what the derived class adds.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QVBoxLayout>

namespace tallix::toolkit {

class Panel : public QDialog {
    Q_OBJECT
public:
    /// Hides the panel first, so that the keyboard returns to the window it blocked.
    ~Panel() override;

    /// The title is the heading and the title of the dialog's window.
    void SetTitle(const QString& title);

    /// Hides the panel with its owner's window.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// Hidden until shown. `owner` is its parent.
    Panel(QWidget& owner, const QString& title);

    /// The contents, below the heading.
    QVBoxLayout& Contents() const { return *contents_; }

    /// The keyboard goes to the panel and, when it is hidden, back to the window it blocked.
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    /// A thin frame, which sets the panel off from the page where no window manager does.
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* heading_;
    QVBoxLayout* contents_;
};

}  // namespace tallix::toolkit
