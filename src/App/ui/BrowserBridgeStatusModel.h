// Per browser that Larkspan's extension supports, whether it reported a tab in the last minute: the
// rows of the Settings page's browser section. Rows are fixed (one per browser, in the order of
// bridgeBrowsers()); their state is read from the bridge every few seconds while a view shows them,
// and only rows that changed are announced.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QTimer>

#include <memory>
#include <vector>

#include "Platform/BrowserBridge.h"
#include "Platform/Clock.h"

class QJSEngine;
class QQmlEngine;

namespace larkspan {

class BrowserBridgeStatusModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    enum Role { NameRole = Qt::UserRole + 1, ReportedRole, DetailRole };

    static constexpr double kRecentSeconds = 60;
    static constexpr int kRefreshMilliseconds = 5000;

    // Without `bridge`, no browser has reported. `clock` must outlive the model.
    BrowserBridgeStatusModel(std::shared_ptr<BrowserBridge> bridge, const Clock& clock,
                             QObject* parent = nullptr);

    // The object QML's `BrowserBridgeStatusModel` stands for: the one given to share(), else a model
    // of no bridge made for that engine.
    static BrowserBridgeStatusModel* create(QQmlEngine* engine, QJSEngine* scriptEngine);
    // Makes `model` (which must outlive every QML engine) the one the views show.
    static void share(BrowserBridgeStatusModel* model);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // Reads the bridge again; the timer calls it.
    void refresh();
    // Each view tells when it is shown or hidden; the rows follow the bridge only while some view is
    // shown, and are brought up to date as the first one shows. A destroyed view counts as hidden.
    Q_INVOKABLE void setShown(QObject* view, bool shown);
    bool isRefreshing() const { return timer_.isActive(); }

private:
    struct Row {
        std::optional<double> secondsAgo;  // since the browser's latest report, while it is recent
        bool operator==(const Row&) const = default;
    };
    std::vector<Row> currentRows() const;

    std::shared_ptr<BrowserBridge> bridge_;
    const Clock& clock_;
    std::vector<Row> rows_;
    std::vector<QObject*> shownViews_;
    QTimer timer_;
    static inline BrowserBridgeStatusModel* shared_ = nullptr;
};

}  // namespace larkspan
