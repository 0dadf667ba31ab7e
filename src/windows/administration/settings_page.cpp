#include "windows/administration/settings_page.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "toolkit/style.h"
#include "toolkit/text.h"

namespace tallix {
namespace {

constexpr char kPerformanceText[] = "Indicates this could impact on system performance.";
constexpr int kLabelWidth = 20 * toolkit::kGrid;
constexpr int kListWidth = 16 * toolkit::kGrid;
constexpr char kStored[] = "stored";  ///< property of a radio button: its stored text

QWidget* SideBySide(QWidget* first, QWidget* second) {
    auto* both = new QWidget;
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(toolkit::kSpacing);
    row->addWidget(first, qobject_cast<QLineEdit*>(first) != nullptr ? 1 : 0);
    row->addWidget(second);
    if (qobject_cast<QLineEdit*>(first) == nullptr) row->addStretch();
    return both;
}

QLabel* PerformanceMark() {
    auto* mark = new QLabel("●");
    QPalette colours = mark->palette();
    colours.setColor(QPalette::WindowText, QColor(toolkit::kEntryColours.back()));
    mark->setPalette(colours);
    mark->setToolTip(kPerformanceText);
    return mark;
}

}  // namespace

SettingsPage::SettingsPage(Application& application, QWidget* parent)
    : OptionsPage(parent), application_(application), rows_(new QVBoxLayout(this)) {
    rows_->setContentsMargins(0, 0, 0, 0);
    rows_->setSpacing(2 * toolkit::kSpacing);
}

bool SettingsPage::IsGranted(const AccessRights& access) const {
    return Allows(access, AccessRight::SystemSettings);
}

QFormLayout& SettingsPage::AddPanel(const QString& title, int stretch) {
    auto* panel = new QGroupBox(title, this);
    auto* form = new QFormLayout(panel);
    form->setContentsMargins(2 * toolkit::kGrid, toolkit::kGrid, 2 * toolkit::kGrid, 2 * toolkit::kGrid);
    form->setSpacing(toolkit::kSpacing);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    rows_->addWidget(panel, stretch);
    return *form;
}

QFormLayout& SettingsPage::AddPanel(const QString& title, OptionPanel settings) {
    QFormLayout& panel = AddPanel(title);
    for (const OptionSetting& setting : AllSettings()) {
        if (setting.panel == settings) AddSetting(panel, setting);
    }
    return panel;
}

void SettingsPage::AddSetting(QFormLayout& panel, const OptionSetting& setting) {
    if (setting.control.kind == SettingKind::Options) return AddChoices(panel, setting);
    QWidget* control = MakeControl(setting);
    controls_[setting.key] = control;
    control->setObjectName(toolkit::ToQString(setting.key));
    control->setAccessibleName(toolkit::ToQString(setting.label));  // also where a button shares its row
    control->setToolTip(toolkit::ToQString(setting.extras.tip));
    QWidget* row = RowOf(setting, control);
    if (setting.control.kind == SettingKind::Switch) {
        panel.addRow(row);
    } else {
        AddLabelled(panel, setting, control, row);
    }
}

void SettingsPage::AddLabelled(QFormLayout& panel, const OptionSetting& setting, QWidget* control,
                               QWidget* row) {
    auto* label = new QLabel(toolkit::ToQString(setting.label));
    control->ensurePolished();
    label->setMinimumSize(kLabelWidth, control->sizeHint().height());  // in the middle of its row
    label->setBuddy(control);
    panel.addRow(label, row);
    EnableWithSwitch(setting, control, label);
}

/// The choices side by side. The panel has the words for them all.
void SettingsPage::AddChoices(QFormLayout& panel, const OptionSetting& setting) {
    auto* row = new QHBoxLayout;
    row->setSpacing(3 * toolkit::kSpacing);
    panel.addRow(row);
    auto* group = new QButtonGroup(this);
    QList<QRadioButton*>& choices = choices_[setting.key];
    for (const SettingChoice& choice : setting.control.choices) {
        auto* button = new QRadioButton(toolkit::ToQString(choice.label));
        button->setProperty(kStored, toolkit::ToQString(choice.stored));
        group->addButton(button);
        row->addWidget(button);
        choices.append(button);
    }
    row->addStretch();
    const auto show = [choices](const QString& stored) {
        for (auto* choice : choices) {
            if (choice->property(kStored).toString() == stored) choice->setChecked(true);
        }
    };
    Bind(setting.key, {show, [group] { return group->checkedButton()->property(kStored).toString(); }});
}

QWidget* SettingsPage::MakeControl(const OptionSetting& setting) {
    switch (setting.control.kind) {
        case SettingKind::List:
            return MakeList(setting);
        case SettingKind::Switch:
            return MakeSwitch(setting);
        default:
            return MakeField(setting);
    }
}

QWidget* SettingsPage::MakeField(const OptionSetting& setting) {
    auto* field = new QLineEdit;
    field->setMinimumWidth(2 * kListWidth);
    if (setting.control.kind == SettingKind::Password) field->setEchoMode(QLineEdit::Password);
    Bind(setting.key,
         {[field](const QString& stored) { field->setText(stored); }, [field] { return field->text(); }});
    return field;
}

QWidget* SettingsPage::MakeList(const OptionSetting& setting) {
    auto* list = new QComboBox;
    list->setMinimumWidth(kListWidth);
    for (const SettingChoice& choice : setting.control.choices)
        list->addItem(toolkit::ToQString(choice.stored));
    const auto show = [list](const QString& stored) {
        if (!stored.isEmpty() && list->findText(stored) < 0) list->addItem(stored);
        list->setCurrentIndex(list->findText(stored));
    };
    Bind(setting.key, {show, [list] { return list->currentText(); }});
    return list;
}

QWidget* SettingsPage::MakeSwitch(const OptionSetting& setting) {
    auto* box = new QCheckBox(toolkit::ToQString(setting.label));
    const QString off = toolkit::ToQString(setting.control.choices.front().stored);
    const QString on = toolkit::ToQString(setting.control.choices.back().stored);
    Bind(setting.key, {[box, on](const QString& stored) { box->setChecked(stored == on); },
                       [box, on, off] { return box->isChecked() ? on : off; }});
    return box;
}

/// The control, and after it what belongs to it.
QWidget* SettingsPage::RowOf(const OptionSetting& setting, QWidget* control) {
    if (setting.control.kind == SettingKind::Folder) {
        return SideBySide(control, MakeBrowseButton(setting, dynamic_cast<QLineEdit&>(*control)));
    }
    if (setting.extras.performance == Performance::Unaffected) return control;
    control->setAccessibleDescription(kPerformanceText);
    return SideBySide(control, PerformanceMark());
}

QWidget* SettingsPage::MakeBrowseButton(const OptionSetting& setting, QLineEdit& field) {
    auto* browse = new QPushButton("Browse");
    connect(browse, &QPushButton::clicked, &field, [this, &setting, &field] {
        const auto folder = application_.prompts.AskFolder(std::string(setting.extras.question));
        if (folder) field.setText(QString::fromStdString(folder->string()));
    });
    return browse;
}

// A setting that is only written while a switch is on can only be edited then.
void SettingsPage::EnableWithSwitch(const OptionSetting& setting, QWidget* control, QWidget* label) {
    if (setting.extras.onlyWhen.empty()) return;
    for (QWidget* widget : {control, label}) {
        widget->setEnabled(false);
        connect(&Box(setting.extras.onlyWhen), &QCheckBox::toggled, widget, &QWidget::setEnabled);
    }
}

void SettingsPage::AddCommandPanel(const CommandFile& file) {
    auto* box = new QPlainTextEdit;
    box->setAccessibleName(toolkit::ToQString(file.label));
    box->setTabChangesFocus(true);
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    AddPanel(toolkit::ToQString(file.label), 1).addRow(box);
    const auto take = [box] { return box->toPlainText().replace('\n', "\r\n"); };
    Bind(file.name, {[box](const QString& text) { box->setPlainText(text); }, take});
}

void SettingsPage::ShowValues(const OptionsValues& values) {
    for (const auto& [key, binding] : bindings_)
        binding.show(QString::fromStdString(values.at(std::string(key))));
}

void SettingsPage::TakeValues(OptionsValues& values) const {
    for (const auto& [key, binding] : bindings_) values[std::string(key)] = binding.take().toStdString();
}

QLineEdit& SettingsPage::Field(std::string_view key) const {
    return dynamic_cast<QLineEdit&>(*controls_.at(key));
}

QCheckBox& SettingsPage::Box(std::string_view key) const {
    return dynamic_cast<QCheckBox&>(*controls_.at(key));
}

QWidget* PerformanceLegend() {
    auto* text = new QLabel(kPerformanceText);
    toolkit::MakeQuiet(*text);
    return SideBySide(PerformanceMark(), text);
}

}  // namespace tallix
