// The panel "Data Items" of the Custom Mappings window: the settings of the Importer service.
#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <array>

#include "administration/importer_settings.h"
#include "toolkit/entry_panel.h"

class QGridLayout;

namespace tallix {

class ImporterPanel : public toolkit::EntryPanel {
    Q_OBJECT
public:
    /// `application` must outlive the panel.
    ImporterPanel(QWidget& window, Application& application);

    /// Shows what is stored.
    void OpenStored();

private:
    QLayout* Switches();
    QGridLayout* Places();
    void AddPlace(QGridLayout& grid, std::size_t value);
    void SetTabOrders();
    void SaveChanges();

    Application& application_;
    QCheckBox* enabled_;
    QCheckBox* createsCsv_;
    std::array<QLineEdit*, kImportedValues.size()> places_{};
};

}  // namespace tallix
