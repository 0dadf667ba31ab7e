// A card that lies over a window or a page and greys what is beneath it.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

namespace tallix::toolkit {

class Overlay : public QWidget {
    Q_OBJECT
public:
    /// Hidden until shown. Covers all of `covered`, of which it becomes a child.
    Overlay(QWidget& covered, const QString& title);

    void SetTitle(const QString& title);
    QString Title() const { return title_->text(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    QFrame& Card() const { return *card_; }

    /// Where the contents of the card go, below its title.
    QVBoxLayout& CardRows() const { return *rows_; }

    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QFrame* card_;
    QLabel* title_;
    QVBoxLayout* rows_;
};

}  // namespace tallix::toolkit
