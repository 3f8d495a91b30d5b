// The settings tab's state for SettingsView: the category list with its badges, the new-category
// sheet's fields (kept while the tab is away, and after "Cancel"), the edits and deletions, and the
// two retention buttons.
//
// A category change goes straight to the store; on success the dashboard reads the categories again
// and the tracker re-reads its catalogue and rules and republishes its pending count, so every tab,
// the tray and the popups show the change at once. A refused change (a name in use, a read-only
// store) is dropped without a word and the caller's sheet stays open.
//
// Retention deletes on the main thread and then compacts the store on a worker, so the disk space
// comes back without freezing the window.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "App/ui/DashboardController.h"
#include "Classification/ui/SettingsItems.h"
#include "Review/DataRetention.h"
#include "ui/BackgroundLoad.h"
#include "ui/ValueListModel.h"

namespace larkspan {

class SettingsController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The dashboard makes its screens' controllers.")

    Q_PROPERTY(larkspan::ValueListModelBase* categories READ categories CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* productivityChoices READ productivityChoices CONSTANT)
    // The new-category sheet's fields; `newProductivity` is a stored value (1, 0, -1).
    Q_PROPERTY(QString newName READ newName WRITE setNewName NOTIFY newCategoryChanged)
    Q_PROPERTY(QString newIcon READ newIcon WRITE setNewIcon NOTIFY newCategoryChanged)
    Q_PROPERTY(int newProductivity READ newProductivity WRITE setNewProductivity NOTIFY newCategoryChanged)
    Q_PROPERTY(bool canAdd READ canAdd NOTIFY newCategoryChanged)
    // Deleted data is being given back to the disk.
    Q_PROPERTY(bool compacting READ compacting NOTIFY compactingChanged)

public:
    // Everything given must outlive the controller.
    SettingsController(Database& database, SessionManager& sessionManager, DashboardController& dashboard,
                       const Clock& clock, QObject* parent = nullptr);

    ValueListModelBase* categories() { return &categories_; }
    ValueListModelBase* productivityChoices() { return &productivityChoices_; }
    QString newName() const { return newName_; }
    void setNewName(const QString& name);
    QString newIcon() const { return newIcon_; }
    void setNewIcon(const QString& icon);
    int newProductivity() const { return rawValue(newProductivity_); }
    void setNewProductivity(int value);
    bool canAdd() const;
    bool compacting() const { return compacting_; }

    // Whether a sheet may be confirmed with `name`.
    Q_INVOKABLE static bool canConfirm(const QString& name);
    // "Add": stores the new category; on success the fields start again (the productivity stays).
    // False, with nothing changed, when the store refused.
    Q_INVOKABLE bool add();
    // "Save" of the edit sheet for `categoryID`. False, with nothing changed, when the store refused
    // or the category is gone.
    Q_INVOKABLE bool save(qint64 categoryID, const QString& name, const QString& icon, int productivity);
    // The row's trash button. False when the store refused; the row stays then.
    Q_INVOKABLE bool remove(qint64 categoryID);
    // The retention buttons.
    Q_INVOKABLE void deleteOlderThanThreeMonths() { deleteOlderThan(RetentionPeriod::threeMonths); }
    Q_INVOKABLE void deleteOlderThanOneYear() { deleteOlderThan(RetentionPeriod::oneYear); }
    // Waits for a running compaction and takes its end, for tests.
    void waitForCompaction() { compaction_.wait(); }

signals:
    void newCategoryChanged();
    void compactingChanged();

private:
    void categoriesStored();
    void showCategories();
    void deleteOlderThan(RetentionPeriod period);

    Database& database_;
    SessionManager& sessionManager_;
    DashboardController& dashboard_;
    const Clock& clock_;
    ValueListModel<CategoryRow> categories_;
    ValueListModel<ProductivityChoice> productivityChoices_;
    QString newName_;
    QString newIcon_;
    Productivity newProductivity_ = Productivity::neutral;
    bool compacting_ = false;
    BackgroundLoad<bool> compaction_;
};

}  // namespace larkspan
