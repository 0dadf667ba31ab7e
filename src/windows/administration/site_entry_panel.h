// The panel "Site Data" of the Site Configuration window.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <string>
#include <utility>
#include <vector>

#include "administration/sites.h"
#include "toolkit/entry_panel.h"

class QGridLayout;

namespace tallix {

class SiteEntryPanel : public toolkit::EntryPanel {
    Q_OBJECT
public:
    explicit SiteEntryPanel(QWidget& window);

    /// Opens the panel with a site in it. `customMappings` are offered after the built-in
    /// layouts.
    void OpenFor(const SiteRecord& site, const std::vector<std::string>& customMappings);

    /// What the inputs hold, with the matching codes and the number of the site that the panel
    /// was opened for.
    SiteRecord Entered() const;

private:
    QLayout* PlaceColumn();
    QLayout* SwitchColumn();
    /// An empty column, which the rows that follow are added to.
    QGridLayout* Column();
    QLineEdit* AddText(QGridLayout& column, const QString& label, std::string SiteRecord::*value);
    void AddInputRow(QGridLayout& column, const QString& label, QWidget* input);
    void ShowWhetherIncluded();
    void Include(bool included);

    std::string id_;
    std::vector<std::pair<QLineEdit*, std::string SiteRecord::*>> texts_;
    QWidget* lastInput_ = nullptr;
    int row_ = 0;  ///< the next one of the column that is being filled
    QLineEdit* switchIp_ = nullptr;
    QLineEdit* switchPort_ = nullptr;
    QCheckBox* included_;
    QComboBox* mapping_;
    QComboBox* thirdPartySystem_;
    QString leftOutIp_;  ///< what the fields held before the site was left out
    QString leftOutPort_;
};

}  // namespace tallix
