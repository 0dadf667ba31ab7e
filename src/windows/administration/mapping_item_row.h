// One item of the Custom Mappings window: its lamp, its name, which chooses it, and the
// boxes of its first and its last character.
#pragma once

#include <QGridLayout>
#include <QLineEdit>
#include <QObject>
#include <QPushButton>
#include <QWidget>

#include "administration/mappings.h"

namespace tallix {

enum class LampState { NotMapped, BeingMapped, Mapped };

/// A small round light. Its accessible name says what the colour means.
class Lamp : public QWidget {
public:
    /// `item` is the name of the item.
    Lamp(QString item, QWidget* parent);

    LampState State() const { return state_; }
    void SetState(LampState state);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString item_;
    LampState state_ = LampState::NotMapped;
};

class MappingItemRow : public QObject {
    Q_OBJECT
public:
    /// Belongs to `window`. Takes four columns of the grid from `column` on.
    MappingItemRow(const MappingItem& item, QWidget& window, QGridLayout& grid, int row, int column);

    Positions Shown() const;

    /// Fills the boxes. The lamp turns green, or red without positions.
    void Show(const Positions& positions);

    /// Marks the item that is being mapped, with a yellow lamp, or removes the mark: the lamp
    /// turns red unless it is green. The boxes stay as they are.
    void SetCurrent(bool current);

signals:
    /// A click on the name.
    void Chosen();

private:
    void MakeName();
    void FollowTyping();

    Lamp* lamp_;
    QPushButton* name_;
    QLineEdit* start_;
    QLineEdit* finish_;
};

}  // namespace tallix
