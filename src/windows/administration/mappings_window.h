// Custom Mappings ("Form15"): describes the layout of a telephone system's output by
// pointing at a sample line, and edits the settings of the Importer service. Closing it shows
// the Options window again.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <array>

#include "administration/mappings.h"
#include "session/application.h"
#include "toolkit/form.h"
#include "windows/administration/importer_panel.h"
#include "windows/administration/mapping_item_row.h"
#include "windows/administration/record_list.h"

namespace tallix {

class MappingsWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    MappingsWindow(toolkit::Forms& forms, Application& application);

protected:
    void OnLoad() override;
    void OnUnload() override;

private:
    QLayout* ListColumn();
    QLayout* MappingColumn();
    QLayout* NameRow();
    QLayout* SampleRow();
    QLayout* SelectionRow();
    QGridLayout* Items();
    QLayout* ButtonRow();
    QPushButton* Button(const QString& caption, void (MappingsWindow::*onClick)());
    void MakeSampleBox();

    void FillList();
    bool IsMappingSelected() const { return list_.View().SelectedRow() > 0; }
    void SelectMapping();
    void DeleteSelected();

    void ShowSample(const std::optional<std::string>& line);
    void GetData();
    void StepSample(Direction direction);
    void ShowSelection();
    void ChooseItem(std::size_t item);
    void MapSelection();
    void ResetFields();
    void SaveFields();

    Application& application_;
    SampleLines lines_;
    std::size_t current_ = kMappingItems.size();  ///< the item being mapped; past the end for none
    RecordList<std::string>& list_;               ///< the entry for a new mapping, and the names
    QLineEdit* name_ = nullptr;
    QComboBox* site_ = nullptr;
    QPlainTextEdit* sample_ = nullptr;
    QLabel* selection_;
    std::array<MappingItemRow*, kMappingItems.size()> items_{};
    ImporterPanel* importer_;
};

}  // namespace tallix
