#include "ui/ValueListModel.h"

namespace larkspan {

ValueListModelBase::ValueListModelBase(const QMetaObject& rowType, QObject* parent)
    : QAbstractListModel(parent), rowType_(rowType) {}

QHash<int, QByteArray> ValueListModelBase::roleNames() const {
    QHash<int, QByteArray> names;
    for (int i = 0; i < rowType_.propertyCount(); ++i)
        names.insert(FirstPropertyRole + i, rowType_.property(i).name());
    return names;
}

QMetaProperty ValueListModelBase::propertyOf(int role) const {
    const int index = role - FirstPropertyRole;
    return index >= 0 && index < rowType_.propertyCount() ? rowType_.property(index) : QMetaProperty();
}

QList<int> ValueListModelBase::changedRoles(const void* shown, const void* next) const {
    QList<int> roles;
    for (int i = 0; i < rowType_.propertyCount(); ++i) {
        const QMetaProperty property = rowType_.property(i);
        if (property.readOnGadget(shown) != property.readOnGadget(next))
            roles.append(FirstPropertyRole + i);
    }
    return roles;
}

}  // namespace larkspan
