// Call Costings ("Form17"): the tariff, edited in a list and stored whole.
#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "costing/costings.h"
#include "session/application.h"
#include "toolkit/form.h"
#include "toolkit/list_view.h"

namespace tallix {

class CallCostingsWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    CallCostingsWindow(toolkit::Forms& forms, Application& application);

protected:
    void OnLoad() override;
    void OnUnload() override;

private:
    QLayout* StandardRow();
    QLayout* EntryRow();
    QLayout* ButtonRow();
    QPushButton* Button(const QString& caption, void (CallCostingsWindow::*action)());
    void Say(const std::string& text) const;

    void Add();
    void Delete();
    void CreateNew();
    void PopulateFromFile();
    void Save();

    Application& application_;
    toolkit::RecordModel<TariffRow>* tariff_;
    toolkit::ListView* list_;
    QLineEdit* standardCost_;
    QLineEdit* number_;
    QLineEdit* cost_;
    QRadioButton* perMinute_;
    QRadioButton* perSecond_;
};

}  // namespace tallix
