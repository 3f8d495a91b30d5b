// The list model of every list a screen shows: rows of one Q_GADGET value type, each of the type's
// properties a role of the same name (so a delegate declares `required property string title`), and
// a `key` member that says which row is which across updates.
//
// setRows() compares the new rows with the shown ones by key and reports the difference row by row —
// removals, moves, insertions and dataChanged for only the roles whose values differ — so a view keeps
// its scroll position, its delegates and its animations. Only a list in which no key survives (another
// day, another period) is a new list and resets the model; emptying it removes the rows. Rows are expected to
// have distinct keys; a repeated key is shown as another row, never lost.
//
// Made for lists of tens to a few thousand rows: an update is quadratic in the worst case (every row
// moved) and linear when rows are only inserted, removed or changed in place.
#pragma once

#include <QAbstractListModel>
#include <QMetaProperty>

#include <algorithm>
#include <utility>
#include <vector>

namespace larkspan {

// The part that needs no row type: the row count for QML and the roles taken from a gadget's properties.
class ValueListModelBase : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    // The first property's role; each further property takes the next number.
    enum Role { FirstPropertyRole = Qt::UserRole + 1 };

    int count() const { return rowCount(); }
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();

protected:
    ValueListModelBase(const QMetaObject& rowType, QObject* parent);
    // The property behind `role`; invalid for any other role.
    QMetaProperty propertyOf(int role) const;
    // The roles whose property values differ between two rows.
    QList<int> changedRoles(const void* shown, const void* next) const;

private:
    const QMetaObject& rowType_;
};

template <class Row>
class ValueListModel final : public ValueListModelBase {
public:
    explicit ValueListModel(QObject* parent = nullptr) : ValueListModelBase(Row::staticMetaObject, parent) {}

    int rowCount(const QModelIndex& parent = QModelIndex()) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
            return {};
        const QMetaProperty property = propertyOf(role);
        return property.isValid() ? property.readOnGadget(&rows_[static_cast<std::size_t>(index.row())])
                                  : QVariant();
    }

    void setRows(std::vector<Row> next) {
        const int before = count();
        if (!rows_.empty() && !next.empty() &&
            std::none_of(rows_.begin(), rows_.end(),
                         [&next](const Row& row) { return findKey(next, 0, row.key) < next.size(); })) {
            beginResetModel();
            rows_ = std::move(next);
            endResetModel();
        } else {
            update(std::move(next));
        }
        if (count() != before)
            emit countChanged();
    }

private:
    static std::size_t findKey(const std::vector<Row>& rows, std::size_t from, const auto& key) {
        for (std::size_t i = from; i < rows.size(); ++i)
            if (rows[i].key == key)
                return i;
        return rows.size();
    }

    void update(std::vector<Row> next) {
        for (std::size_t i = rows_.size(); i-- > 0;) {
            if (findKey(next, 0, rows_[i].key) == next.size()) {
                beginRemoveRows({}, static_cast<int>(i), static_cast<int>(i));
                rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(i));
                endRemoveRows();
            }
        }
        for (std::size_t i = 0; i < next.size(); ++i) {
            const int at = static_cast<int>(i);
            const std::size_t found = findKey(rows_, i, next[i].key);
            if (found == rows_.size()) {
                beginInsertRows({}, at, at);
                rows_.insert(rows_.begin() + at, std::move(next[i]));
                endInsertRows();
                continue;
            }
            if (found != i) {
                beginMoveRows({}, static_cast<int>(found), static_cast<int>(found), {}, at);
                std::rotate(rows_.begin() + at, rows_.begin() + static_cast<std::ptrdiff_t>(found),
                            rows_.begin() + static_cast<std::ptrdiff_t>(found) + 1);
                endMoveRows();
            }
            const QList<int> roles = changedRoles(&rows_[i], &next[i]);
            if (!roles.isEmpty()) {
                rows_[i] = std::move(next[i]);
                emit dataChanged(index(at), index(at), roles);
            }
        }
        // Left over only when the shown rows repeated a key.
        if (rows_.size() > next.size()) {
            beginRemoveRows({}, static_cast<int>(next.size()), count() - 1);
            rows_.resize(next.size());
            endRemoveRows();
        }
    }

    std::vector<Row> rows_;
};

}  // namespace larkspan
