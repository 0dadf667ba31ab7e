// Enter and Escape in a window, as a desktop user expects them: where the input that has
// the focus takes no such key itself, Enter presses one button and Escape another.
#pragma once

#include <QObject>

class QPushButton;
class QWidget;

namespace tallix::toolkit {

class DialogKeys : public QObject {
public:
    /// Belongs to `window`. Without its button Enter does nothing, and Escape closes the
    /// window. A button that has the focus is pressed by Enter itself.
    DialogKeys(QWidget& window, QPushButton* onEnter, QPushButton* onEscape);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPushButton* ButtonOf(int key) const;

    QPushButton* onEnter_;
    QPushButton* onEscape_;
};

}  // namespace tallix::toolkit
