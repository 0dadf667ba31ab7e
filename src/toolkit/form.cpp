#include "toolkit/form.h"

#include <QCloseEvent>

#include "toolkit/forms.h"

namespace tallix::toolkit {

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

}  // namespace tallix::toolkit
