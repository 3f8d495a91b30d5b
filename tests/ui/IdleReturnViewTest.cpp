// The welcome-back card on screen: the time away, the five answers, "Dismiss" answering as "Break",
// and its floating window as the presenter shows it, takes it away on the answer and replaces it.
#include <QPointer>
#include <QTest>

#include "App/ui/QtAppPresenter.h"
#include "QuickScreen.h"
#include "Review/ui/IdleReturnController.h"

using namespace larkspan;

class IdleReturnViewTest : public QObject {
    Q_OBJECT
private slots:
    void showsTheAbsenceAndAnswersEachOption() {
        std::vector<std::int64_t> answers;
        IdleReturnController controller(IdleReturn(5400, [&](std::int64_t id) { answers.push_back(id); }));
        // After the controllers, so that the views go first.
        QuickScreen screen;
        QVERIFY(screen.loadCard(QStringLiteral("IdleReturnView"), &controller));
        QCOMPARE(screen.text("message"), QStringLiteral("You were away for 1h 30m. What were you doing?"));
        QCOMPARE(screen.text("option-4"), QStringLiteral("Meeting"));
        QVERIFY(!screen.find("option-5"));
        QVERIFY(screen.find("message")->property("lineCount").toInt() <= 2);
        QVERIFY(screen.saveScreenshots("idle-return", "options"));
        QVERIFY(screen.focusByKeyboard("option-1"));
        QVERIFY(screen.saveScreenshots("idle-return", "focus-ring"));
        QVERIFY(screen.click("option-2"));
        QVERIFY(screen.click("option-0"));
        QCOMPARE(answers, std::vector<std::int64_t>{6});
    }

    void dismissAnswersAsBreak() {
        std::vector<std::int64_t> dismissed, broke;
        IdleReturnController dismissing(IdleReturn(400, [&](std::int64_t id) { dismissed.push_back(id); }));
        IdleReturnController breaking(IdleReturn(400, [&](std::int64_t id) { broke.push_back(id); }));
        // After the controllers, so that the views go first.
        QuickScreen screen;
        QVERIFY(screen.loadCard(QStringLiteral("IdleReturnView"), &dismissing));
        QVERIFY(screen.click("dismiss"));
        QVERIFY(screen.loadCard(QStringLiteral("IdleReturnView"), &breaking));
        QVERIFY(screen.click("option-0"));
        QCOMPARE(dismissed, std::vector<std::int64_t>{15});
        QCOMPARE(dismissed, broke);
    }

    void presenterShowsItFloatingAndClosesItOnTheAnswer() {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QtAppPresenter presenter;
        std::vector<std::int64_t> answers;
        presenter.showReturnFromIdlePopup(720, [&](std::int64_t id) {
            answers.push_back(id);
            presenter.closeIdlePopup();
        });
        QPointer<FloatingWindow> window = presenter.idleWindow();
        QVERIFY(window && window->view());
        // Flags and place are the approval card's test: both go through the same presentation.
        QVERIFY(QTest::qWaitForWindowExposed(window));

        QQuickItem* meeting = findItem(window->contentItem(), "option-4");
        QVERIFY(meeting);
        QTest::mouseClick(
            window, Qt::LeftButton, Qt::NoModifier,
            meeting->mapToScene(QPointF(meeting->width() / 2, meeting->height() / 2)).toPoint());
        QCOMPARE(answers, std::vector<std::int64_t>{6});
        // The answered card goes with its view.
        QVERIFY(!presenter.idleWindow());
        QTRY_VERIFY(!window);

        // A card still shown is replaced by the next one.
        presenter.showReturnFromIdlePopup(900, [](std::int64_t) {});
        window = presenter.idleWindow();
        presenter.showReturnFromIdlePopup(960, [](std::int64_t) {});
        QVERIFY(presenter.idleWindow() != window);
        QVERIFY(presenter.idleWindow()->isVisible());
        QTRY_VERIFY(!window);
    }
};

QTEST_MAIN(IdleReturnViewTest)
#include "IdleReturnViewTest.moc"
