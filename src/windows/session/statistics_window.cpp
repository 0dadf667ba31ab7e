#include "windows/session/statistics_window.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <chrono>
#include <utility>

#include "toolkit/style.h"
#include "toolkit/unload_orders.h"

namespace tallix {
namespace {

constexpr std::chrono::milliseconds kRefreshDelay{1000};
constexpr int kPictureSize = 10 * toolkit::kGrid;
constexpr int kListHeight = 8 * toolkit::kGrid;
constexpr std::size_t kPlotColour = 0;

QTreeWidget* MakeList(const QStringList& columns, const QString& name, QWidget* parent) {
    auto* list = new QTreeWidget(parent);
    list->setHeaderLabels(columns);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setFixedHeight(kListHeight);
    list->setAccessibleName(name);
    return list;
}

}  // namespace

PlotPicture::PlotPicture(QWidget* parent) : QFrame(parent) {
    setFixedSize(kPictureSize, kPictureSize);
    setFrameShape(QFrame::StyledPanel);
}

void PlotPicture::Draw(std::vector<PlotLine> lines) {
    lines_ = std::move(lines);
    update();
}

void PlotPicture::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.scale(width() / (2 * kPlotReach), -height() / (2 * kPlotReach));
    QPen pen(palette().mid(), 1);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawLine(QLineF(-kPlotReach, 0, kPlotReach, 0));
    painter.drawLine(QLineF(0, -kPlotReach, 0, kPlotReach));
    pen.setColor(QColor(toolkit::kEntryColours.at(kPlotColour)));
    painter.setPen(pen);
    for (const PlotLine& line : lines_) {
        painter.drawLine(QLineF(line.from.x, line.from.y, line.to.x, line.to.y));
    }
}

void PlotPicture::mousePressEvent(QMouseEvent*) {
    Draw(Plot({}, {}));
}

StatisticsWindow::StatisticsWindow(toolkit::Forms& forms, Application& application)
    : MainWindow(forms, application, {true, NoUpdatesSetting::Ignored}),
      totalCalls_(new QLabel(this)),
      emergencyCalls_(new QLabel(this)),
      waiting_(new QGroupBox("Please Wait...", this)) {
    totalCalls_->setObjectName("TotalCalls");
    waiting_->setObjectName("PleaseWait");
    auto* text = new QVBoxLayout(waiting_);
    text->addWidget(new QLabel("Populating Statistics", waiting_));
    waiting_->hide();
    AddPanel(*StatisticsPanel());
    refreshTimer_.setInterval(kRefreshDelay);
    connect(&refreshTimer_, &QTimer::timeout, this, &StatisticsWindow::Refresh);
}

QGroupBox* StatisticsWindow::StatisticsPanel() {
    auto* panel = new QGroupBox("Call Stats", this);
    auto* rows = new QVBoxLayout(panel);
    rows->setSpacing(toolkit::kSpacing);
    rows->addLayout(Values());
    rows->addLayout(Lists());
    rows->addLayout(Pictures());
    rows->addLayout(RefreshRow());
    return panel;
}

QLayout* StatisticsWindow::Values() {
    auto* values = new QFormLayout;
    values->addRow("Total Calls Available For Reporting:", totalCalls_);
    values->addRow("Emergency Service Calls:", emergencyCalls_);
    return values;
}

QLayout* StatisticsWindow::Lists() {
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing * 2);
    row->addWidget(MakeList({"Extension", "Total Calls"}, "Calls by Extension", this));
    auto* second = MakeList({""}, "Calls", this);
    second->setHeaderHidden(true);
    row->addWidget(second);
    return row;
}

QLayout* StatisticsWindow::Pictures() {
    auto* chart = new QFrame(this);
    chart->setFrameShape(QFrame::StyledPanel);
    chart->setFixedHeight(kPictureSize);
    auto* row = new QHBoxLayout;
    row->setSpacing(toolkit::kSpacing * 2);
    row->addWidget(chart, 1);
    row->addWidget(new PlotPicture(this));
    return row;
}

QLayout* StatisticsWindow::RefreshRow() {
    auto* refresh = new QPushButton("Refresh Stats", this);
    toolkit::MakeLink(*refresh);
    connect(refresh, &QPushButton::clicked, this, &StatisticsWindow::Refresh);
    auto* row = new QHBoxLayout;
    row->addWidget(refresh, 0, Qt::AlignTop);
    row->addStretch();
    row->addWidget(waiting_);
    return row;
}

void StatisticsWindow::OnLoad() {
    MainWindow::OnLoad();
    refreshTimer_.start();
}

void StatisticsWindow::Refresh() {
    refreshTimer_.stop();
    waiting_->show();
    statistics_.emplace(Program().session.database);
    totalCalls_->setText(QString::number(statistics_->TotalCalls()));
}

void StatisticsWindow::OnUnload() {
    refreshTimer_.stop();
    statistics_.reset();
    MainWindow::OnUnload();
}

void StatisticsWindow::ExitReports() {
    toolkit::UnloadInOrder(OtherForms(), toolkit::kStatisticsExitOrder);
}

}  // namespace tallix
