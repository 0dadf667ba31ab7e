// The forms of the program by name. A form is made when it is first loaded, may be shown
// and hidden any number of times, and is destroyed when unloaded. The next load makes a
// new one. The process ends when the last form has been unloaded.
//
//     forms.Register("Form6", [&] { return std::make_unique<LoginWindow>(forms, application); });
//     forms.Show("Form6");
//
// Windows open one another by name through this object, without including each other.
#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace tallix::toolkit {

class Form;

class Forms : public QObject {
public:
    using Factory = std::function<std::unique_ptr<Form>()>;

    Forms();
    ~Forms() override;

    void Register(const QString& name, Factory factory);

    /// The form of that name, which is made now unless it is loaded. Null for a name that
    /// is not registered. Show, Hide and Unload ignore such a name.
    Form* Load(const QString& name);
    void Show(const QString& name);
    void Hide(const QString& name);
    void Unload(const QString& name);

    /// The form when it is loaded, else null.
    Form* Find(const QString& name) const;

    /// The names of the loaded forms in the order of their loading.
    std::vector<QString> Loaded() const;

private:
    using Position = std::vector<std::unique_ptr<Form>>::const_iterator;

    Position PositionOf(const QString& name) const;
    void EndWhenEmpty();

    std::map<QString, Factory> factories_;
    std::vector<std::unique_ptr<Form>> loaded_;
};

}  // namespace tallix::toolkit
