// A window that stays while it works: events that are served meanwhile may ask it to close,
// and the work would continue in a window that is gone.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <vector>

namespace tallix::toolkit {

/// Turns the inputs of a window off and refuses its closing, for as long as it lives. Inputs
/// that were off before stay off afterwards, and the focus returns to where it was.
class HeldWindow : public QObject {
public:
    /// `window` must outlive this.
    explicit HeldWindow(QWidget& window);
    ~HeldWindow() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& window_;
    QPointer<QWidget> focus_;
    std::vector<QPointer<QWidget>> disabled_;
};

}  // namespace tallix::toolkit
