// Call Cost Mappings ("Form19"): the classes of charge of area codes. No entry of the
// program opens it; it stands ready.
#pragma once

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>

#include "foundation/application.h"
#include "ui/form.h"
#include "ui/list_view.h"
#include "ui/overlay.h"

namespace tallix {

class CallCostMapWindow : public ui::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    CallCostMapWindow(ui::Forms& forms, Application& application);

protected:
    void OnLoad() override;

private:
    QWidget* MapFrame();
    QLayout* ButtonRow();
    QPushButton* AddButton(QHBoxLayout& row, const QString& caption);

    void Save();
    void PopulateFromDatabase();

    Application& application_;
    ui::ListView* list_;
    ui::Overlay* waiting_;
    std::vector<QPushButton*> buttons_;
};

}  // namespace tallix
