// The left side of the Scheduled Reports window: one schedule while it is defined.
#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "scheduling/schedules.h"
#include "session/application.h"
#include "windows/scheduling/parameter_fields.h"

namespace tallix {

class ScheduleDefinition : public QWidget {
    Q_OBJECT
public:
    /// `application` must outlive the widget.
    explicit ScheduleDefinition(Application& application);

    /// Fills the list of preset reports.
    void ListReports();

    /// Enables the inputs for a new schedule.
    void BeginNew();

    /// Enables the inputs for a stored schedule. Its name is fixed; report, frequency and
    /// parameters are chosen again.
    void BeginEdit(const std::string& name, const ScheduledReport& stored);

    /// Empties and disables the inputs.
    void End();

    Schedule Defined() const;
    SaveMode Mode() const { return mode_; }

    /// The button that asks to save what is defined.
    QPushButton* SaveButton() const { return save_; }

private:
    QLayout* NameRows();
    QLayout* FrequencyRows();
    QWidget* OutputFrame();
    QLayout* LocationRow();

    void Begin(SaveMode mode, QWidget& first);
    void OfferParameters();
    void ChooseFolder();

    Application& application_;
    SaveMode mode_ = SaveMode::New;
    QLineEdit* name_;
    QComboBox* report_;
    QButtonGroup* frequencies_;  ///< ids are places in kFrequencies
    QRadioButton* toFile_;
    QRadioButton* byMail_;
    QLineEdit* location_;
    ParameterFields* parameters_;
    QPushButton* save_;
};

}  // namespace tallix
