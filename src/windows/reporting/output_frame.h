#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QRadioButton>

#include "reporting/destinations.h"
#include "toolkit/printers.h"

namespace tallix {

/// The frame "Output Report": where a report goes.
class OutputFrame : public QGroupBox {
    Q_OBJECT
public:
    OutputFrame();

    /// Fills the lists. None of their entries is chosen.
    void Fill(const toolkit::Printers& printers, const SettingsStore& settings);

    DestinationChoice Choice() const;
    void Choose(Destination destination, const std::string& application);

private:
    void EnableLists();

    QRadioButton* onScreen_;
    QRadioButton* toPrinter_;
    QRadioButton* inApplication_;
    QComboBox* printers_;
    QComboBox* applications_;
};

}  // namespace tallix
