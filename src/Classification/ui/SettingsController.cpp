#include "Classification/ui/SettingsController.h"

#include <utility>

#include "Classification/CategorySettings.h"
#include "ui/QtConversion.h"

namespace larkspan {

namespace {

const QString defaultIcon = QStringLiteral("\U0001F4E6");  // 📦

Productivity productivityOf(int value) {
    return productivityFromRaw(value).value_or(Productivity::neutral);
}

}  // namespace

SettingsController::SettingsController(Database& database, SessionManager& sessionManager,
                                       DashboardController& dashboard, const Clock& clock, QObject* parent)
    : QObject(parent),
      database_(database),
      sessionManager_(sessionManager),
      dashboard_(dashboard),
      clock_(clock),
      categories_(this),
      productivityChoices_(this),
      newIcon_(defaultIcon) {
    std::vector<ProductivityChoice> choices;
    for (const auto productivity :
         {Productivity::productive, Productivity::neutral, Productivity::unproductive})
        choices.push_back({rawValue(productivity), toQString(label(productivity))});
    productivityChoices_.setRows(std::move(choices));
    showCategories();
    connect(&dashboard_, &DashboardController::sidebarChanged, this, &SettingsController::showCategories);
}

void SettingsController::setNewName(const QString& name) {
    if (name == newName_)
        return;
    newName_ = name;
    emit newCategoryChanged();
}

void SettingsController::setNewIcon(const QString& icon) {
    if (icon == newIcon_)
        return;
    newIcon_ = icon;
    emit newCategoryChanged();
}

void SettingsController::setNewProductivity(int value) {
    if (productivityOf(value) == newProductivity_)
        return;
    newProductivity_ = productivityOf(value);
    emit newCategoryChanged();
}

bool SettingsController::canAdd() const {
    return canConfirm(newName_);
}

bool SettingsController::canConfirm(const QString& name) {
    return canConfirmCategoryName(name.toStdString());
}

bool SettingsController::add() {
    if (!canAdd())
        return false;
    try {
        database_.insertCategory(
            newCategory(newName_.toStdString(), newIcon_.toStdString(), newProductivity_));
    } catch (const DBError&) {
        return false;
    }
    newName_.clear();
    newIcon_ = defaultIcon;
    emit newCategoryChanged();
    categoriesStored();
    return true;
}

bool SettingsController::save(qint64 categoryID, const QString& name, const QString& icon, int productivity) {
    const Category* original = categoryWithID(dashboard_.categories(), categoryID);
    if (!original || !canConfirm(name))
        return false;
    try {
        database_.updateCategory(
            editedCategory(*original, name.toStdString(), icon.toStdString(), productivityOf(productivity)));
    } catch (const DBError&) {
        return false;
    }
    categoriesStored();
    return true;
}

bool SettingsController::remove(qint64 categoryID) {
    try {
        database_.deleteCategory(categoryID);
    } catch (const DBError&) {
        return false;
    }
    categoriesStored();
    return true;
}

void SettingsController::categoriesStored() {
    dashboard_.loadCategories();
    sessionManager_.categoriesChanged();
    // A deleted category takes its rules with it.
    sessionManager_.refreshLearnedRules();
    // Republishing the count redraws the tray and the popover with the new names and icons.
    sessionManager_.refreshApprovalCount();
}

void SettingsController::showCategories() {
    std::vector<CategoryRow> rows;
    for (const auto& category : dashboard_.categories()) {
        const ProductivityBadge badge = productivityBadge(category.productivity);
        rows.push_back({category.id, toQString(category.name), toQString(category.icon),
                        rawValue(category.productivity), toQString(badge.text), toQColor(badge.color),
                        canDeleteCategory(category)});
    }
    categories_.setRows(std::move(rows));
}

void SettingsController::deleteOlderThan(RetentionPeriod period) {
    if (!deleteDataOlderThan(database_, period, clock_.now()))
        return;
    sessionManager_.refreshApprovalCount();
    compacting_ = true;
    emit compactingChanged();
    Database* database = &database_;
    compaction_.start([database] { return compact(*database); },
                      [this](bool) {
                          compacting_ = false;
                          emit compactingChanged();
                      });
}

}  // namespace larkspan
