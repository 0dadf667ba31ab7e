// The main menu with call statistics ("Form18"). It opens where the session's UseStatsMain
// is set, which nothing sets at present. Only the number of calls is filled in.
#pragma once

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QTimer>
#include <optional>

#include "reporting/call_statistics.h"
#include "reporting/plot.h"
#include "windows/session/main_window.h"

namespace tallix {

/// The small picture: two axes that cross in its middle, and the lines drawn last.
class PlotPicture : public QFrame {
    Q_OBJECT
public:
    explicit PlotPicture(QWidget* parent = nullptr);

    void Draw(std::vector<PlotLine> lines);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    std::vector<PlotLine> lines_;
};

class StatisticsWindow : public MainWindow {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    StatisticsWindow(toolkit::Forms& forms, Application& application);

protected:
    void OnLoad() override;
    void OnUnload() override;

    /// Leaves silently: writes no log row and deletes no file.
    void ExitReports() override;

private:
    QGroupBox* StatisticsPanel();
    QLayout* Values();
    QLayout* Lists();
    QLayout* Pictures();
    QLayout* RefreshRow();
    void Refresh();

    QTimer refreshTimer_;
    QLabel* totalCalls_;
    QLabel* emergencyCalls_;
    QGroupBox* waiting_;

    std::optional<CallStatistics> statistics_;  ///< from the first refresh until the form goes
};

}  // namespace tallix
