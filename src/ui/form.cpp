#include "ui/form.h"

#include <QCloseEvent>

#include "ui/forms.h"

namespace tallix::ui {

Form::Form(Forms& forms, const QString& caption) : forms_(forms) {
    setWindowTitle(caption);
}

void Form::Unload() {
    forms_.Unload(objectName());
}

void Form::closeEvent(QCloseEvent* event) {
    event->accept();
    Unload();
}

}  // namespace tallix::ui
