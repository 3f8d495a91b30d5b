#include "App/ui/QuickSummaryController.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QPointer>
#include <QThreadPool>
#include <algorithm>

#include "App/QuickSummary.h"
#include "Classification/Palette.h"
#include "Platform/LocalDay.h"
#include "ui/QtConversion.h"

namespace larkspan {

namespace {

constexpr int kRefreshMilliseconds = 30'000;

// Assigns `next` and says whether that changed anything.
template <class Item>
bool replace(Item& shown, Item next) {
    if (shown == next)
        return false;
    shown = std::move(next);
    return true;
}

}  // namespace

QuickSummaryController::QuickSummaryController(Database& database, SessionManager& sessionManager,
                                               PomodoroTimer& pomodoroTimer, const Clock& clock,
                                               QObject* parent)
    : QObject(parent),
      database_(database),
      sessionManager_(sessionManager),
      pomodoroTimer_(pomodoroTimer),
      clock_(clock),
      breakdownBars_(this),
      recentRows_(this) {
    day_.dateText = QLocale().toString(localDateTime(clock_.now()).date(), QLocale::LongFormat);
    refresh_.setInterval(kRefreshMilliseconds);
    connect(&refresh_, &QTimer::timeout, this, &QuickSummaryController::load);
    refresh_.start();
    // Each subscription delivers its current value at once, which fills the items.
    subscriptions_.push_back(
        sessionManager_.currentSession.subscribe([this](const auto&) { trackerMoved(); }));
    subscriptions_.push_back(
        sessionManager_.pendingApprovalCount.subscribe([this](std::int64_t) { trackerMoved(); }));
    // progress follows secondsLeft; the mode's colour and icon follow mode.
    subscriptions_.push_back(pomodoroTimer_.mode.subscribe([this](const auto&) { timerMoved(); }));
    subscriptions_.push_back(pomodoroTimer_.runState.subscribe([this](const auto&) { timerMoved(); }));
    subscriptions_.push_back(pomodoroTimer_.secondsLeft.subscribe([this](const auto&) { timerMoved(); }));
}

void QuickSummaryController::load() {
    const Date now = clock_.now();
    Database* database = &database_;
    QPointer<QuickSummaryController> self(this);
    QThreadPool::globalInstance()->start([database, now, self] {
        Loaded loaded;
        loaded.now = now;
        loaded.summary = database->daySummary(now);
        loaded.categories = database->fetchCategories();
        loaded.recent = recentActivities(database->fetchActivities(startOfLocalDay(now), now));
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [self, loaded = std::move(loaded)]() mutable {
                if (self) {
                    self->assign(std::move(loaded));
                }
            },
            Qt::QueuedConnection);
    });
}

void QuickSummaryController::assign(Loaded loaded) {
    categories_ = categoriesByID(loaded.categories);
    const Breakdown shownBreakdown = breakdown(loaded.summary, categories_);
    const auto line = productivityLine(loaded.summary);
    SummaryDay day;
    day.dateText = QLocale().toString(localDateTime(loaded.now).date(), QLocale::LongFormat);
    day.totalText = loaded.summary ? toQString(formatSeconds(loaded.summary->totalSeconds)) : QString();
    day.hasBreakdown = shownBreakdown.hasData;
    if (line) {
        day.productivityText = toQString(line->text);
        day.productivityColor = toQColor(toneColor(line->tone));
    }
    day_ = std::move(day);

    std::vector<BreakdownBarItem> bars;
    for (const BreakdownBar& bar : shownBreakdown.bars)
        bars.push_back({bar.category.id, toQString(bar.category.icon), toQString(bar.category.name),
                        toQColor(bar.category.color()), bar.fraction, toQString(bar.duration)});
    breakdownBars_.setRows(std::move(bars));

    const QLocale locale;
    const QString timeFormat = shortTimeFormat(locale);
    std::vector<RecentRowItem> rows;
    for (const RecentRow& row : larkspan::recentRows(loaded.recent, categories_))
        rows.push_back({row.id, toQString(row.icon), toQString(row.title),
                        locale.toString(localDateTime(row.startTime).time(), timeFormat),
                        toQString(row.duration)});
    recentRows_.setRows(std::move(rows));

    emit dayChanged();
    // The session row names the session's category, which the load may have renamed.
    trackerMoved();
}

void QuickSummaryController::trackerMoved() {
    const SessionRow row = sessionRow(sessionManager_.currentSession.get(), categories_);
    const bool sessionMoved =
        replace(session_, SummarySession{toQString(row.icon), toQString(row.title), toQString(row.subtitle),
                                         toQColor(row.dot.value_or(Palette::grey)), row.hasSession});
    const std::int64_t count = sessionManager_.pendingApprovalCount.get();
    const bool pendingMoved = replace(
        pending_, SummaryPending{static_cast<int>(std::clamp<std::int64_t>(count, 0, INT32_MAX)),
                                 toQString(pendingBannerText(count)), toQString(pendingFooterText(count))});
    if (sessionMoved || pendingMoved)
        emit trackerChanged();
}

void QuickSummaryController::timerMoved() {
    const TimerControls controls = timerControls(pomodoroTimer_.mode.get(), pomodoroTimer_.runState.get());
    if (replace(timer_, SummaryTimer{toQString(controls.modeIcon), toQString(pomodoroTimer_.displayTime()),
                                     toQString(rawValue(pomodoroTimer_.mode.get())),
                                     toQColor(pomodoroTimer_.modeColor()),
                                     std::clamp(pomodoroTimer_.progress(), 0.0, 1.0), controls.showsStop,
                                     toQString(controls.mainSymbol), controls.backgroundOpacity}))
        emit timerChanged();
}

SummaryLabels QuickSummaryController::labels() const {
    return {summary_text::today,           summary_text::tracked,      summary_text::breakdownTitle,
            summary_text::noDataYet,       summary_text::recentTitle,  summary_text::nothingTracked,
            summary_text::tapToCategorize, summary_text::openDashboard};
}

void QuickSummaryController::toggleTimer() {
    if (timerControls(pomodoroTimer_.mode.get(), pomodoroTimer_.runState.get()).mainPauses) {
        pomodoroTimer_.pause();
    } else {
        pomodoroTimer_.start();
    }
}

void QuickSummaryController::stopTimer() {
    pomodoroTimer_.stop();
}

void QuickSummaryController::openDashboard() {
    if (onOpenDashboard_) {
        onOpenDashboard_();
    }
}

void QuickSummaryController::openReview() {
    if (onOpenReview_) {
        onOpenReview_();
    }
}

}  // namespace larkspan
