#include "toolkit/forms.h"

#include <QCoreApplication>
#include <algorithm>
#include <utility>

#include "toolkit/form.h"

namespace tallix::toolkit {

Forms::Forms() = default;

Forms::~Forms() = default;

void Forms::Register(const QString& name, Factory factory) {
    factories_[name] = std::move(factory);
}

Form* Forms::Load(const QString& name) {
    if (Form* form = Find(name)) return form;
    const auto factory = factories_.find(name);
    if (factory == factories_.end()) return nullptr;
    Form* form = loaded_.emplace_back(factory->second()).get();
    form->setObjectName(name);
    form->OnLoad();
    return Find(name);  // a form may unload itself while it loads
}

void Forms::Show(const QString& name) {
    Form* form = Load(name);
    if (form == nullptr) return;
    form->show();
    form->raise();
    form->activateWindow();
}

void Forms::Hide(const QString& name) {
    if (Form* form = Find(name)) form->hide();
}

// The form may be the one whose event is being handled. It leaves the list at once, and
// is destroyed when control returns to the event loop.
void Forms::Unload(const QString& name) {
    Form* form = Find(name);
    if (form == nullptr) return;
    form->OnUnload();
    form->hide();
    const auto place = loaded_.begin() + (PositionOf(name) - loaded_.cbegin());
    connect(form, &QObject::destroyed, this, &Forms::EndWhenEmpty);
    place->release()->deleteLater();
    loaded_.erase(place);
}

// Called when an unloaded form is destroyed, after the action that unloaded it. So an
// action may unload every form, show a message, and load another form.
void Forms::EndWhenEmpty() {
    if (loaded_.empty()) QCoreApplication::quit();
}

Forms::Position Forms::PositionOf(const QString& name) const {
    return std::find_if(loaded_.cbegin(), loaded_.cend(),
                        [&](const std::unique_ptr<Form>& form) { return form->objectName() == name; });
}

Form* Forms::Find(const QString& name) const {
    const Position place = PositionOf(name);
    return place == loaded_.cend() ? nullptr : place->get();
}

std::vector<QString> Forms::Loaded() const {
    std::vector<QString> names;
    for (const auto& form : loaded_) names.push_back(form->objectName());
    return names;
}

}  // namespace tallix::toolkit
