#include "App/ui/QuickSummaryController.h"

#include <QColor>
#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QPointer>
#include <QRegularExpression>
#include <QThreadPool>
#include <algorithm>

#include "App/QuickSummary.h"
#include "Platform/LocalDay.h"

namespace larkspan {

namespace {

constexpr int kRefreshMilliseconds = 30'000;

QString text(const std::string& value) {
    return QString::fromStdString(value);
}

QColor qColor(const Color& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue));
}

QDateTime localDateTime(Date instant) {
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(instant * 1000));
}

// The locale's short time style, hours and minutes: the C locale's short style carries seconds.
QString shortTimeFormat(const QLocale& locale) {
    QString format = locale.timeFormat(QLocale::ShortFormat);
    format.remove(QRegularExpression(QStringLiteral("[:.]ss?")));
    return format;
}

}  // namespace

QuickSummaryController::QuickSummaryController(Database& database, SessionManager& sessionManager,
                                               PomodoroTimer& pomodoroTimer, const Clock& clock,
                                               QObject* parent)
    : QObject(parent),
      database_(database),
      sessionManager_(sessionManager),
      pomodoroTimer_(pomodoroTimer),
      clock_(clock) {
    shown_.now = clock_.now();
    refresh_.setInterval(kRefreshMilliseconds);
    connect(&refresh_, &QTimer::timeout, this, &QuickSummaryController::load);
    refresh_.start();
    // progress follows secondsLeft; the mode's colour and icon follow mode.
    timerSubscriptions_.push_back(pomodoroTimer_.mode.subscribe([this](const auto&) { timerMoved(); }));
    timerSubscriptions_.push_back(pomodoroTimer_.runState.subscribe([this](const auto&) { timerMoved(); }));
    timerSubscriptions_.push_back(
        pomodoroTimer_.secondsLeft.subscribe([this](const auto&) { timerMoved(); }));
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
    shown_ = std::move(loaded);
    emit summaryChanged();
    emit redrawn();
}

void QuickSummaryController::timerMoved() {
    emit timerChanged();
    emit redrawn();
}

QVariantMap QuickSummaryController::labels() const {
    return {{"today", summary_text::today},
            {"tracked", summary_text::tracked},
            {"breakdownTitle", summary_text::breakdownTitle},
            {"noDataYet", summary_text::noDataYet},
            {"recentTitle", summary_text::recentTitle},
            {"nothingTracked", summary_text::nothingTracked},
            {"tapToCategorize", summary_text::tapToCategorize},
            {"openDashboard", summary_text::openDashboard}};
}

QString QuickSummaryController::dateText() const {
    return QLocale().toString(localDateTime(shown_.now).date(), QLocale::LongFormat);
}

QString QuickSummaryController::totalText() const {
    return shown_.summary ? text(formatSeconds(shown_.summary->totalSeconds)) : QString();
}

bool QuickSummaryController::hasBreakdown() const {
    return breakdown(shown_.summary, categoriesByID(shown_.categories)).hasData;
}

QVariantList QuickSummaryController::breakdownBars() const {
    QVariantList bars;
    for (const BreakdownBar& bar : breakdown(shown_.summary, categoriesByID(shown_.categories)).bars) {
        bars.append(QVariantMap{{"icon", text(bar.category.icon)},
                                {"name", text(bar.category.name)},
                                {"color", qColor(bar.category.color())},
                                {"fraction", bar.fraction},
                                {"duration", text(bar.duration)}});
    }
    return bars;
}

QVariantMap QuickSummaryController::productivity() const {
    const auto line = productivityLine(shown_.summary);
    if (!line) {
        return {};
    }
    return {{"text", text(line->text)}, {"color", qColor(toneColor(line->tone))}};
}

QVariantList QuickSummaryController::recentRows() const {
    QVariantList rows;
    const QLocale locale;
    const QString timeFormat = shortTimeFormat(locale);
    for (const RecentRow& row : larkspan::recentRows(shown_.recent, categoriesByID(shown_.categories))) {
        rows.append(QVariantMap{{"icon", text(row.icon)},
                                {"title", text(row.title)},
                                {"time", locale.toString(localDateTime(row.startTime).time(), timeFormat)},
                                {"duration", text(row.duration)}});
    }
    return rows;
}

QVariantMap QuickSummaryController::session() const {
    const SessionRow row =
        sessionRow(sessionManager_.currentSession.get(), categoriesByID(shown_.categories));
    return {{"icon", text(row.icon)},
            {"title", text(row.title)},
            {"subtitle", text(row.subtitle)},
            {"dotColor", row.dot ? qColor(*row.dot) : QColor(Qt::gray)},
            {"hasSession", row.hasSession}};
}

int QuickSummaryController::pendingCount() const {
    return static_cast<int>(
        std::clamp<std::int64_t>(sessionManager_.pendingApprovalCount.get(), 0, INT32_MAX));
}

QString QuickSummaryController::pendingBannerText() const {
    return text(larkspan::pendingBannerText(sessionManager_.pendingApprovalCount.get()));
}

QString QuickSummaryController::pendingFooterText() const {
    return text(larkspan::pendingFooterText(sessionManager_.pendingApprovalCount.get()));
}

QVariantMap QuickSummaryController::timer() const {
    const TimerControls controls = timerControls(pomodoroTimer_.mode.get(), pomodoroTimer_.runState.get());
    return {{"modeIcon", text(controls.modeIcon)},
            {"displayTime", text(pomodoroTimer_.displayTime())},
            {"modeName", QString::fromUtf8(rawValue(pomodoroTimer_.mode.get()))},
            {"color", qColor(pomodoroTimer_.modeColor())},
            {"progress", std::clamp(pomodoroTimer_.progress(), 0.0, 1.0)},
            {"running", controls.mainPauses},
            {"showsStop", controls.showsStop},
            {"mainSymbol", text(controls.mainSymbol)},
            {"backgroundOpacity", controls.backgroundOpacity}};
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

}  // namespace larkspan
