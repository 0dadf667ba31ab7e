// The base of the tests of one window: an application of its own, and the window as a
// person sees it, by the words on it.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "session/access_log.h"
#include "session/access_rights.h"
#include "support/test_application.h"
#include "support/window_test.h"
#include "toolkit/form.h"
#include "toolkit/form_names.h"
#include "toolkit/list_view.h"

namespace tallix::test {

class FormTest : public WindowTest {
protected:
    FormTest() { world.application.session.CurrentAccess = AccessRights::All(); }

    /// Names the form under test. It is shown when a test first asks for something on it.
    template <typename TestedWindow, typename... Parts>
    void UnderTest(const char* name, Parts&... parts) {
        form_ = name;
        forms.Register(name, [this, &parts...] { return std::make_unique<TestedWindow>(forms, parts...); });
    }

    /// Takes a form that was named before under test again.
    void UnderTest(const char* name) { form_ = name; }

    /// Empty forms in the places of other windows.
    void AddEmptyForms(std::initializer_list<const char*> names) {
        for (const char* name : names) {
            forms.Register(name, [this, name] { return std::make_unique<toolkit::Form>(forms, name); });
        }
    }

    /// Takes a page of the options under test, in a window of its own.
    template <typename Page>
    Page& OpenPage() {
        auto* page = new Page(world.application, nullptr);
        page_.reset(page);
        page->Load();
        page->show();
        return *page;
    }

    QWidget& Window() {
        if (page_) return *page_;
        if (forms.Find(form_) == nullptr) forms.Show(form_);
        return *forms.Find(form_);
    }
    bool IsLoaded() const { return forms.Find(form_) != nullptr; }
    bool IsVisible(const char* form) const { return forms.Find(form) && forms.Find(form)->isVisible(); }

    /// The first widget of that type and text, of those that show if any does. Throws
    /// std::runtime_error where there is none.
    template <typename Widget>
    Widget& Captioned(const QString& caption) {
        Widget* hidden = nullptr;
        for (Widget* widget : Window().findChildren<Widget*>()) {
            if (widget->text() != caption) continue;
            if (widget->isVisible()) return *widget;
            if (hidden == nullptr) hidden = widget;
        }
        if (hidden == nullptr) throw std::runtime_error("there is no \"" + caption.toStdString() + "\"");
        return *hidden;
    }
    QAbstractButton& Button(const QString& caption) { return Captioned<QAbstractButton>(caption); }
    void Click(const QString& caption) { ClickOn(Button(caption)); }

    /// The input that the label belongs to.
    template <typename Input = QLineEdit>
    Input& Labelled(const QString& label) {
        return dynamic_cast<Input&>(*Captioned<QLabel>(label).buddy());
    }
    void Type(const QString& label, const QString& text) { Labelled(label).setText(text); }

    /// The field with that tip, which belongs to no label, or not to it alone.
    QLineEdit& Tipped(const QString& tip) {
        for (QLineEdit* field : Window().findChildren<QLineEdit*>()) {
            if (field->toolTip() == tip) return *field;
        }
        throw std::runtime_error("no field for \"" + tip.toStdString() + "\"");
    }

    /// The list of that name, or the only one.
    toolkit::ListView& List(const QString& name = {}) {
        return *Window().findChild<toolkit::ListView*>(name);
    }
    void SelectRow(int row, const QString& list = {}) {
        List(list).setCurrentIndex(List(list).model()->index(row, 0));
    }

    /// The texts of a list, row by row.
    std::vector<std::vector<std::string>> Rows(const QString& list = {}) {
        const toolkit::ListModel& model = List(list).Model();
        std::vector<std::vector<std::string>> rows(model.Count());
        for (int row = 0; row < model.Count(); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                rows[row].push_back(model.Text(row, column).toStdString());
            }
        }
        return rows;
    }
    void SetCell(int row, int column, const QString& text) {
        List().model()->setData(List().model()->index(row, column), text);
    }

    const Message& LastMessage() const { return world.prompts.messages.back(); }

    /// What the access log says, first to last.
    std::vector<std::string> Logged() {
        std::vector<std::string> events;
        for (const AccessLogRow& row : ReadAccessLog(world.application.session)) events.push_back(row.back());
        return events;
    }

    TestApplication world;

private:
    const char* form_ = nullptr;
    std::unique_ptr<QWidget> page_;
};

}  // namespace tallix::test
