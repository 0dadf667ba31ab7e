#include "toolkit/style.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QStyleFactory>

namespace tallix::toolkit {
namespace {

constexpr char kTextRole[] = "textRole";

// Labels carry their role as a property, so that the sheet stays in one place.
constexpr char kSheet[] = R"(
    QLabel[textRole="heading"] { font-size: 22pt; font-weight: 600; }
    QLabel[textRole="subheading"] { font-size: 12pt; color: palette(shadow); }
    QLabel[textRole="quiet"] { color: palette(shadow); }
    QPushButton { min-height: 24px; padding: 2px 16px; }
    QLineEdit, QComboBox { min-height: 24px; }
    QLineEdit { padding: 2px 4px; }
    QListView::item { padding: 2px 4px; }
    QPushButton[textRole="link"] { border: none; background: transparent; padding: 2px; min-height: 0px;
        color: palette(link); text-decoration: underline; }
    QPushButton[textRole="link"]:focus { border: 1px dotted palette(shadow); padding: 1px; }
)";

}  // namespace

void ApplyStyle(QApplication& application) {
    application.setStyle(QStyleFactory::create("Fusion"));
    application.setStyleSheet(kSheet);
}

void MakeHeading(QLabel& label) {
    label.setProperty(kTextRole, "heading");
}

void MakeSubheading(QLabel& label) {
    label.setProperty(kTextRole, "subheading");
}

void MakeQuiet(QLabel& label) {
    label.setProperty(kTextRole, "quiet");
}

void MakeLink(QPushButton& button) {
    button.setProperty(kTextRole, "link");
    button.setCursor(Qt::PointingHandCursor);
    button.setAutoDefault(true);
}

}  // namespace tallix::toolkit
