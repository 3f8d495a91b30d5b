#include "App/ui/BrowserBridgeStatusModel.h"

#include <QQmlEngine>

#include <algorithm>
#include <cmath>

#include "Platform/Linux/BrowserHostManifests.h"

namespace larkspan {

BrowserBridgeStatusModel::BrowserBridgeStatusModel(std::shared_ptr<BrowserBridge> bridge, const Clock& clock,
                                                   QObject* parent)
    : QAbstractListModel(parent), bridge_(std::move(bridge)), clock_(clock) {
    rows_ = currentRows();
    timer_.setInterval(kRefreshMilliseconds);
    connect(&timer_, &QTimer::timeout, this, &BrowserBridgeStatusModel::refresh);
}

BrowserBridgeStatusModel* BrowserBridgeStatusModel::create(QQmlEngine* engine, QJSEngine*) {
    if (shared_) {
        QJSEngine::setObjectOwnership(shared_, QJSEngine::CppOwnership);
        return shared_;
    }
    static const SystemClock clock;
    return new BrowserBridgeStatusModel(nullptr, clock, engine);
}

void BrowserBridgeStatusModel::share(BrowserBridgeStatusModel* model) {
    shared_ = model;
}

int BrowserBridgeStatusModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant BrowserBridgeStatusModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const auto& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case NameRole:
            return QString::fromUtf8(bridgeBrowsers()[static_cast<std::size_t>(index.row())].name);
        case ReportedRole:
            return row.secondsAgo.has_value();
        case DetailRole:
            if (!row.secondsAgo)
                return QStringLiteral("No tab reported in the last minute");
            if (*row.secondsAgo < 5)
                return QStringLiteral("Reported a tab just now");
            return QStringLiteral("Reported a tab %1 seconds ago").arg(static_cast<int>(*row.secondsAgo));
        default:
            return {};
    }
}

QHash<int, QByteArray> BrowserBridgeStatusModel::roleNames() const {
    return {{NameRole, "name"}, {ReportedRole, "reported"}, {DetailRole, "detail"}};
}

void BrowserBridgeStatusModel::refresh() {
    const auto fresh = currentRows();
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (rows_[i] == fresh[i])
            continue;
        rows_[i] = fresh[i];
        const auto changed = index(static_cast<int>(i));
        emit dataChanged(changed, changed);
    }
}

void BrowserBridgeStatusModel::setShown(QObject* view, bool shown) {
    if (view == nullptr)
        return;
    const auto known = std::find(shownViews_.begin(), shownViews_.end(), view);
    if (shown && known == shownViews_.end()) {
        shownViews_.push_back(view);
        connect(view, &QObject::destroyed, this, [this, view] { setShown(view, false); });
    } else if (!shown && known != shownViews_.end()) {
        shownViews_.erase(known);
        disconnect(view, &QObject::destroyed, this, nullptr);
    }
    if (shownViews_.empty()) {
        timer_.stop();
    } else if (!timer_.isActive()) {
        refresh();
        timer_.start();
    }
}

std::vector<BrowserBridgeStatusModel::Row> BrowserBridgeStatusModel::currentRows() const {
    const auto& browsers = bridgeBrowsers();
    std::vector<Row> rows(browsers.size());
    if (!bridge_)
        return rows;
    const double now = clock_.now();
    for (const auto& report : bridge_->latestReports()) {
        const auto* browser = bridgeBrowserOfProgram(report.program);
        // A clock set back makes a report seem to come from the future: it is as recent as can be.
        const double ago = std::max(0.0, std::floor(now - report.received));
        if (!browser || ago >= kRecentSeconds)
            continue;
        auto& row = rows[static_cast<std::size_t>(browser - browsers.data())];
        row.secondsAgo = std::min(row.secondsAgo.value_or(ago), ago);
    }
    return rows;
}

}  // namespace larkspan
