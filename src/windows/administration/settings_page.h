// A page whose panels hold settings: the table of the settings gives each its control, its
// label and its texts.
//
//     QFormLayout& panel = AddPanel("Proxy Settings");
//     for (const char* key : {"UseProxy", "ProxyIP", "ProxyPort"}) AddSetting(panel, key);
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

    /// The pages of settings go by the right to the system settings.
    bool IsGranted(std::string_view access) const override;

protected:
    /// Panels stand below one another; the last one may stretch.
    QFormLayout& AddPanel(const QString& title, int stretch = 0);

    /// The control of a setting with its label, and `behind` it in the same row, such as a
    /// button. Returns the control.
    QWidget& AddSetting(QFormLayout& panel, std::string_view key, QWidget* behind = nullptr);

    /// One that could make the system slow, with the mark that says so.
    void AddMarkedSetting(QFormLayout& panel, std::string_view key);

    /// The choices of a setting side by side, with no label of their own: the panel has the
    /// words for them. Returns them in the order of the table.
    QList<QRadioButton*> AddOptions(QFormLayout& panel, std::string_view key);

    /// A panel of one box for the text of a command file.
    void AddCommandPanel(const CommandFile& file);

    /// Another way of a setting on this page.
    struct Binding {
        std::function<void(const QString&)> show;
        std::function<QString()> take;
    };
    void Bind(std::string_view key, Binding binding) { bindings_[key] = std::move(binding); }

    QVBoxLayout& Rows() const { return *rows_; }
    Application& Program() const { return application_; }

    QLineEdit& Field(std::string_view key) const;
    QCheckBox& Box(std::string_view key) const;

private:
    QWidget* MakeField(const OptionSetting& setting);
    QWidget* MakeList(const OptionSetting& setting);
    QWidget* MakeSwitch(const OptionSetting& setting);
    QWidget* MakeControl(const OptionSetting& setting);
    void GoWithSwitch(const OptionSetting& setting, QWidget* control, QWidget* label);

    Application& application_;
    QVBoxLayout* rows_;
    std::map<std::string_view, QWidget*> controls_;
    std::map<std::string_view, Binding> bindings_;
};

/// The line that explains the mark of AddMarkedSetting.
QWidget* PerformanceLegend();

}  // namespace tallix
