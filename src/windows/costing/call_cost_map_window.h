// Call Cost Mappings ("Form19"): the classes of charge of area codes. Nothing in the
// program opens it yet.
#pragma once

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>

#include "costing/cost_map.h"
#include "session/application.h"
#include "toolkit/form.h"
#include "toolkit/list_view.h"

namespace tallix {

class CallCostMapWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    CallCostMapWindow(toolkit::Forms& forms, Application& application);

protected:
    void OnLoad() override;

private:
    QWidget* MapFrame();
    QLayout* ButtonRow();
    QPushButton* AddButton(QHBoxLayout& row, const QString& caption);

    void Save();
    void PopulateFromDatabase();

    Application& application_;
    toolkit::RecordModel<CostMapRow>* map_;
    toolkit::ListView* list_;
};

}  // namespace tallix
