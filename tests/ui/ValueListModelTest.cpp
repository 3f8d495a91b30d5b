// The list model base reports each change row by row, keyed, and resets only for a new list.
#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>
#include <array>

#include "ui/ValueListModel.h"

using namespace larkspan;

namespace {

struct Row {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(int minutes MEMBER minutes)
public:
    int key = 0;
    QString title;
    int minutes = 0;
};

std::vector<Row> rows(std::initializer_list<int> keys, int minutes = 0) {
    std::vector<Row> list;
    for (int key : keys)
        list.push_back({key, QString::number(key), minutes});
    return list;
}

}  // namespace

class ValueListModelTest : public QObject {
    Q_OBJECT
private slots:
    void updatesAreRowLevelAndKeyed() {
        struct Case {
            const char* name;
            std::vector<Row> next;
            std::array<int, 5> signals_;  // inserted, removed, moved, changed, reset
        };
        const Case cases[] = {{"same rows", rows({1, 2, 3}), {0, 0, 0, 0, 0}},
                              {"one new at the top", rows({0, 1, 2, 3}), {1, 0, 0, 0, 0}},
                              {"one gone", rows({1, 3}), {0, 1, 0, 0, 0}},
                              {"reordered", rows({3, 1, 2}), {0, 0, 1, 0, 0}},
                              {"values changed", rows({1, 2, 3}, 5), {0, 0, 0, 3, 0}},
                              {"repeated key", rows({1, 1, 2, 3}), {1, 0, 0, 0, 0}},
                              {"emptied", rows({}), {0, 3, 0, 0, 0}},
                              {"a new list", rows({7, 8}), {0, 0, 0, 0, 1}}};
        for (const Case& c : cases) {
            ValueListModel<Row> model;
            QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
            model.setRows(rows({1, 2, 3}));
            QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
            QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
            QSignalSpy moved(&model, &QAbstractItemModel::rowsMoved);
            QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
            QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
            QSignalSpy counted(&model, &ValueListModelBase::countChanged);
            model.setRows(c.next);

            const std::array<int, 5> seen{int(inserted.count()), int(removed.count()), int(moved.count()),
                                          int(changed.count()), int(resets.count())};
            QVERIFY2(seen == c.signals_, c.name);
            QCOMPARE(counted.count(), model.count() == 3 ? 0 : 1);
            // Whatever the road, the model ends up showing the rows given, in their order.
            QCOMPARE(model.count(), int(c.next.size()));
            const int titleRole = model.roleNames().key("title");
            const int minutesRole = model.roleNames().key("minutes");
            for (int i = 0; i < model.count(); ++i) {
                QCOMPARE(model.data(model.index(i), titleRole).toString(), c.next[std::size_t(i)].title);
                QCOMPARE(model.data(model.index(i), minutesRole).toInt(), c.next[std::size_t(i)].minutes);
            }
            // A change names only the roles that changed.
            if (!changed.isEmpty())
                QCOMPARE(changed.first().at(2).value<QList<int>>(), QList<int>{minutesRole});
            QVERIFY(!model.data(model.index(0), Qt::DisplayRole).isValid());
        }
    }
};

QTEST_MAIN(ValueListModelTest)
#include "ValueListModelTest.moc"
