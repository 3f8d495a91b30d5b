// The analytics tab's state: the chosen range and day, and the page of the last load as value items
// and list models for AnalyticsView. A load reads the period and the catalogue and computes the page
// on a worker (ui/BackgroundLoad), so the window never waits; the old figures stand until the new
// ones arrive. What the page says comes from Analytics/AnalyticsScreen; this class adds the user's
// locale for dates and times.
//
// A load runs when the view appears, after every change of range, and after a change of day while the
// range is `day`; a page left open does not follow the clock. Range and day live as long as the
// controller, so coming back to `day` shows the day last chosen.
//
// Signals: headerChanged for the range or the day, pageChanged when a load's page arrives.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "Analytics/AnalyticsScreen.h"
#include "Analytics/ui/AnalyticsItems.h"
#include "Data/Database.h"
#include "Platform/Clock.h"
#include "ui/BackgroundLoad.h"
#include "ui/ValueListModel.h"

namespace larkspan {

class AnalyticsController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The dashboard makes its screens' controllers.")

    Q_PROPERTY(AnalyticsLabels labels READ labels CONSTANT)
    Q_PROPERTY(AnalyticsHeader header READ header NOTIFY headerChanged)
    Q_PROPERTY(AnalyticsSectionsItem sections READ sections NOTIFY pageChanged)
    Q_PROPERTY(larkspan::ValueListModelBase* tiles READ tiles CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* days READ days CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* hours READ hours CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* sessions READ sessions CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* categories READ categories CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* websites READ websites CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* applications READ applications CONSTANT)

public:
    // `database` and `clock` must outlive the controller. Opens on `week` with today selected.
    AnalyticsController(Database& database, const Clock& clock, QObject* parent = nullptr);

    AnalyticsLabels labels() const;
    const AnalyticsHeader& header() const { return header_; }
    const AnalyticsSectionsItem& sections() const { return sections_; }
    ValueListModelBase* tiles() { return &tiles_; }
    ValueListModelBase* days() { return &days_; }
    ValueListModelBase* hours() { return &hours_; }
    ValueListModelBase* sessions() { return &sessions_; }
    ValueListModelBase* categories() { return &categories_; }
    ValueListModelBase* websites() { return &websites_; }
    ValueListModelBase* applications() { return &applications_; }

    // Reads the period in the background; pageChanged follows on the main thread.
    Q_INVOKABLE void load();
    // A segment of the range selector, by its place in it; reloads.
    Q_INVOKABLE void chooseRange(int index);
    // The day bar's arrows (-1, +1) and "Today"; they reload only while the range is `day`.
    Q_INVOKABLE void stepDay(int days);
    Q_INVOKABLE void goToToday();

    // Waits for the load in flight and takes its page, for tests.
    void waitForLoad() { loader_.wait(); }

signals:
    void headerChanged();
    void pageChanged();

private:
    struct Loaded {
        analytics::AnalyticsPage page;
        analytics::AnalyticsSections sections;
    };
    void setSelectedDay(Date day);
    void updateHeader();
    void assign(Loaded loaded);

    Database& database_;
    const Clock& clock_;
    analytics::TimeRange range_ = analytics::TimeRange::week;
    Date selectedDay_;
    AnalyticsHeader header_;
    AnalyticsSectionsItem sections_;
    ValueListModel<AnalyticsTileItem> tiles_;
    ValueListModel<AnalyticsDayItem> days_;
    ValueListModel<AnalyticsHourItem> hours_;
    ValueListModel<AnalyticsSessionItem> sessions_;
    ValueListModel<AnalyticsShareItem> categories_;
    ValueListModel<AnalyticsShareItem> websites_;
    ValueListModel<AnalyticsShareItem> applications_;
    BackgroundLoad<Loaded> loader_;  // last: waits for its load before the models go
};

}  // namespace larkspan
