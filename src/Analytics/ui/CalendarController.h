// The calendar tab's state: the month on show, its day grid, summary cards and category bar. The
// month's summaries and pomodoro counts load on a worker when the screen appears and after each move
// of the month; the present day's figures do not refresh by themselves. Picking a day hands it to the
// dashboard, which shows it on the timeline. What the screen shows comes from Analytics/Calendar*.
//
// One signal per cause: monthChanged when the month moves or its data arrives; the list models report
// their own rows. The dashboard's selected date and categories redraw the cells and the bar.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QStringList>

#include <map>
#include <string>
#include <vector>

#include "Analytics/CalendarMonth.h"
#include "Analytics/ui/CalendarItems.h"
#include "App/ui/DashboardController.h"
#include "Platform/Clock.h"
#include "ui/BackgroundLoad.h"
#include "ui/ValueListModel.h"

namespace larkspan {

class CalendarController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The dashboard makes its screens' controllers.")

    Q_PROPERTY(CalendarHeader header READ header NOTIFY monthChanged)
    Q_PROPERTY(QStringList weekdays READ weekdays CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* days READ days CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* statCards READ statCards CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* barSegments READ barSegments CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* legend READ legend CONSTANT)
    // The category bar's width in pixels, which the view sets as it lays out.
    Q_PROPERTY(double barWidth READ barWidth WRITE setBarWidth NOTIFY barWidthChanged)

public:
    // Every argument must outlive the controller.
    CalendarController(Database& database, DashboardController& dashboard, const Clock& clock,
                       QObject* parent = nullptr);

    const CalendarHeader& header() const { return header_; }
    QStringList weekdays() const;
    ValueListModelBase* days() { return &days_; }
    ValueListModelBase* statCards() { return &statCards_; }
    ValueListModelBase* barSegments() { return &barSegments_; }
    ValueListModelBase* legend() { return &legend_; }
    double barWidth() const { return barWidth_; }
    void setBarWidth(double width);

    // The present month, loaded anew: what the tab shows each time it appears.
    Q_INVOKABLE void showPresentMonth();
    // One month back (always possible) or forward (not past the month after the present one).
    Q_INVOKABLE void previousMonth();
    Q_INVOKABLE void nextMonth();
    // The cell at `index` of the grid: a day up to today goes to the timeline; others do nothing.
    Q_INVOKABLE void pickDay(int index);

    // Waits for the load in flight; for tests.
    void waitForLoad() { load_.wait(); }

signals:
    void monthChanged();
    void barWidthChanged();

private:
    struct Loaded {
        analytics::YearMonth month;
        std::vector<DaySummary> summaries;
        std::map<std::string, int> pomoCounts;
    };
    void show(analytics::YearMonth month);
    void recomputeCells();
    void recomputeSummary();
    void recomputeShares();

    Database& database_;
    DashboardController& dashboard_;
    const Clock& clock_;
    analytics::YearMonth month_;
    Loaded loaded_;  // of month_ once its load has ended, else empty
    std::vector<std::optional<analytics::DayCell>> cells_;
    CalendarHeader header_;
    double barWidth_ = 0;
    ValueListModel<CalendarDayItem> days_{this};
    ValueListModel<CalendarStatItem> statCards_{this};
    ValueListModel<CalendarShareItem> barSegments_{this};
    ValueListModel<CalendarShareItem> legend_{this};
    BackgroundLoad<Loaded> load_;
};

}  // namespace larkspan
