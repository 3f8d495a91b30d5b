// The list model base reports each change row by row, keyed, and resets only for a new list.
#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

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

Q_DECLARE_METATYPE(std::vector<Row>)

class ValueListModelTest : public QObject {
    Q_OBJECT
private slots:
    void updatesAreRowLevelAndKeyed_data() {
        QTest::addColumn<std::vector<Row>>("next");
        QTest::addColumn<int>("inserted");
        QTest::addColumn<int>("removed");
        QTest::addColumn<int>("moved");
        QTest::addColumn<int>("changed");
        QTest::addColumn<int>("resets");
        QTest::newRow("same rows") << rows({1, 2, 3}) << 0 << 0 << 0 << 0 << 0;
        QTest::newRow("one new at the top") << rows({0, 1, 2, 3}) << 1 << 0 << 0 << 0 << 0;
        QTest::newRow("one gone") << rows({1, 3}) << 0 << 1 << 0 << 0 << 0;
        QTest::newRow("reordered") << rows({3, 1, 2}) << 0 << 0 << 1 << 0 << 0;
        QTest::newRow("values changed") << rows({1, 2, 3}, 5) << 0 << 0 << 0 << 3 << 0;
        QTest::newRow("repeated key") << rows({1, 1, 2, 3}) << 1 << 0 << 0 << 0 << 0;
        QTest::newRow("emptied") << rows({}) << 0 << 3 << 0 << 0 << 0;
        QTest::newRow("a new list") << rows({7, 8}) << 0 << 0 << 0 << 0 << 1;
    }

    void updatesAreRowLevelAndKeyed() {
        QFETCH(std::vector<Row>, next);
        ValueListModel<Row> model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setRows(rows({1, 2, 3}));
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
        QSignalSpy moved(&model, &QAbstractItemModel::rowsMoved);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        QSignalSpy counted(&model, &ValueListModelBase::countChanged);
        model.setRows(next);

        QTEST(int(inserted.count()), "inserted");
        QTEST(int(removed.count()), "removed");
        QTEST(int(moved.count()), "moved");
        QTEST(int(changed.count()), "changed");
        QTEST(int(resets.count()), "resets");
        QCOMPARE(counted.count(), model.count() == 3 ? 0 : 1);
        // Whatever the road, the model ends up showing the rows given, in their order.
        QCOMPARE(model.count(), int(next.size()));
        const int titleRole = model.roleNames().key("title");
        const int minutesRole = model.roleNames().key("minutes");
        for (int i = 0; i < model.count(); ++i) {
            QCOMPARE(model.data(model.index(i), titleRole).toString(), next[std::size_t(i)].title);
            QCOMPARE(model.data(model.index(i), minutesRole).toInt(), next[std::size_t(i)].minutes);
        }
        // A change names only the roles that changed.
        if (!changed.isEmpty())
            QCOMPARE(changed.first().at(2).value<QList<int>>(), QList<int>{minutesRole});
        QVERIFY(!model.data(model.index(0), Qt::DisplayRole).isValid());
    }
};

QTEST_MAIN(ValueListModelTest)
#include "ValueListModelTest.moc"
