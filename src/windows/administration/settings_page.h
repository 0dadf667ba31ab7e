// A page whose panels hold settings: the table of the settings gives each its panel, its
// control, its label and its texts.
//
//     AddPanel("Proxy Settings", OptionPanel::Proxy);
#pragma once

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>
#include <map>
#include <string>

#include "administration/options_settings.h"
#include "session/access_rights.h"
#include "windows/administration/options_page.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;

namespace tallix {

class SettingsPage : public OptionsPage {
    Q_OBJECT
public:
    SettingsPage(Application& application, QWidget* parent);

    /// Puts the values into the controls, and out of them.
    virtual void ShowValues(const OptionsValues& values);
    void TakeValues(OptionsValues& values) const;

    /// Unless a page overrides it: with the right to the system settings.
    bool IsGranted(const AccessRights& access) const override;

protected:
    /// An empty panel below the others. A panel with `stretch` takes the room that is left.
    QFormLayout& AddPanel(const QString& title, int stretch = 0);

    /// A panel with the controls of its settings.
    QFormLayout& AddPanel(const QString& title, OptionPanel settings);

    /// A panel of one box for the text of a command file.
    void AddCommandPanel(const CommandFile& file);

    /// How a value is shown on this page, and how it is read back.
    struct Binding {
        std::function<void(const QString&)> show;
        std::function<QString()> take;
    };
    void Bind(std::string_view key, Binding binding) { bindings_[key] = std::move(binding); }

    QVBoxLayout& Rows() const { return *rows_; }
    Application& Program() const { return application_; }

    QLineEdit& Field(std::string_view key) const;
    QCheckBox& Box(std::string_view key) const;
    const QList<QRadioButton*>& Choices(std::string_view key) const { return choices_.at(key); }

private:
    void AddSetting(QFormLayout& panel, const OptionSetting& setting);
    void AddLabelled(QFormLayout& panel, const OptionSetting& setting, QWidget* control, QWidget* row);
    void AddChoices(QFormLayout& panel, const OptionSetting& setting);
    QWidget* MakeControl(const OptionSetting& setting);
    QWidget* MakeField(const OptionSetting& setting);
    QWidget* MakeList(const OptionSetting& setting);
    QWidget* MakeSwitch(const OptionSetting& setting);
    QWidget* MakeBrowseButton(const OptionSetting& setting, QLineEdit& field);
    QWidget* RowOf(const OptionSetting& setting, QWidget* control);
    void EnableWithSwitch(const OptionSetting& setting, QWidget* control, QWidget* label);

    Application& application_;
    QVBoxLayout* rows_;
    std::map<std::string_view, QWidget*> controls_;
    std::map<std::string_view, QList<QRadioButton*>> choices_;
    std::map<std::string_view, Binding> bindings_;
};

/// The line that explains the mark of settings that could make the system slow.
QWidget* PerformanceLegend();

}  // namespace tallix
