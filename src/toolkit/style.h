// The look that all windows share: the system palette, one grid of distances, and the
// six entry colours as the only accents.
#pragma once

#include <QColor>
#include <array>

class QApplication;
class QLabel;
class QPushButton;

namespace tallix::toolkit {

/// The grid in pixels: every margin, gap and size of a drawn thing is a multiple of it.
inline constexpr int kGrid = 8;
inline constexpr int kSpacing = kGrid;
inline constexpr int kMargin = 3 * kGrid;

/// The colours of the six main entries, in their order.
inline constexpr std::array<QRgb, 6> kEntryColours = {qRgb(2, 176, 230),  qRgb(205, 0, 0),
                                                      qRgb(164, 208, 71), qRgb(0, 0, 0),
                                                      qRgb(240, 222, 83), qRgb(255, 124, 11)};

/// Applies the widget style and the style sheet of the program.
void ApplyStyle(QApplication& application);

/// The kinds of text that differ from plain labels.
void MakeHeading(QLabel& label);
void MakeSubheading(QLabel& label);
void MakeQuiet(QLabel& label);

/// A button that looks like a link in running text.
void MakeLink(QPushButton& button);

}  // namespace tallix::toolkit
