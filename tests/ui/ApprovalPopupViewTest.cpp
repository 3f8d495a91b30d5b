// The two floating cards on screen. The approval card: its answers (a grid button, "Skip", a "More…"
// entry, the end of the countdown), the hover pause, a short grid, long names. The welcome-back card:
// the time away, its answers and "Dismiss" as "Break". And both floating windows as the presenter
// shows them: flags, replacement by the next card and closing.
#include <QPointer>
#include <QTest>

#include "App/ui/QtAppPresenter.h"
#include "QuickScreen.h"
#include "Review/ui/ApprovalPopupController.h"
#include "Review/ui/IdleReturnController.h"

using namespace larkspan;
using namespace std::chrono_literals;

namespace {

using Answers = std::vector<std::optional<std::int64_t>>;

ActivityRecord mystery(std::string title = "Mystery") {
    ActivityRecord record;
    record.id = 42;
    record.appName = "Mystery";
    record.windowTitle = std::move(title);
    return record;
}

using Choices = std::vector<std::int64_t>;

// An approval card on screen, keeping its answers; the screen comes after the controller, so that the
// view goes first.
struct Card {
    Answers answers;
    ApprovalPopupController controller;
    QuickScreen screen;

    explicit Card(std::vector<std::int64_t> ids, std::chrono::milliseconds tick = 1s,
                  ActivityRecord record = mystery(), std::vector<Category> categories = Category::seeded())
        : controller(ApprovalPopup(std::move(record), std::move(categories), std::move(ids),
                                   [this](auto id) { answers.push_back(id); }),
                     tick) {
        QVERIFY(screen.loadCard(QStringLiteral("ApprovalPopupView"), &controller));
    }
};

// Every Text item below `item`.
void collectTexts(QQuickItem* item, QList<QQuickItem*>& texts) {
    if (item->inherits("QQuickText"))
        texts.append(item);
    for (QQuickItem* child : item->childItems())
        collectTexts(child, texts);
}

}  // namespace

class ApprovalPopupViewTest : public QObject {
    Q_OBJECT
private slots:
    void gridButtonAnswersItsCategory() {
        Card card({1, 4, 6, 10, 16, 17}, 1s, mystery("Quarterly plan.odt"));
        QuickScreen& screen = card.screen;
        QCOMPARE(screen.text("activityTitle"), QStringLiteral("Quarterly plan.odt"));
        QVERIFY(screen.find("category-5") && !screen.find("category-6"));
        QVERIFY(screen.saveScreenshots("approval", "six"));
        // Brought to the keyboard, the card rings the focused answer.
        QVERIFY(screen.focusByKeyboard("category-5"));
        QTest::keyClick(screen.window(), Qt::Key_Left);
        QVERIFY(screen.find("category-4")->hasActiveFocus());
        QVERIFY(screen.focusByKeyboard("category-0"));
        QVERIFY(screen.saveScreenshots("approval", "focus-ring"));
        QVERIFY(screen.press("category-1"));
        QCOMPARE(card.answers, Answers{4});
    }

    void skipAndRunningOutAnswerNone() {
        Card skipping({1});
        QVERIFY(skipping.screen.click("skip"));
        QCOMPARE(skipping.answers, Answers{std::nullopt});
        Card running({1}, 5ms);
        QTRY_COMPARE(running.answers, Answers{std::nullopt});
    }

    // Resting on a button holds the card as well as resting on its background; leaving lets it go.
    // How the countdown holds is the popup's own rule.
    void hoveringHoldsTheCard() {
        Card card({1, 4, 6});
        QVERIFY(card.screen.click("category-0", true));
        QTRY_VERIFY(card.controller.hovered());
        QVERIFY(card.screen.click("activityTitle", true));
        QVERIFY(card.controller.hovered());
        QTest::mouseMove(card.screen.window(), QPoint(5, 5));
        QTRY_VERIFY(!card.controller.hovered());
        QVERIFY(card.answers.empty());
    }

    void fewerIdsGiveShorterGridAndTheRestInMore() {
        Card card({3, 9});
        QuickScreen& screen = card.screen;
        QVERIFY(!screen.find("category-2"));
        QCOMPARE(screen.text("category-1"), QStringLiteral("AI Tools"));
        QVERIFY(screen.click("more"));
        QQuickItem* overlay = screen.window()->contentItem();
        QTRY_VERIFY(findItem(overlay, "menu-0") && findItem(overlay, "menu-0")->isVisible());
        QVERIFY(findItem(overlay, "menu-18") && !findItem(overlay, "menu-19"));
        QTest::qWait(100);
        QVERIFY(screen.saveScreenshots("approval", "more-menu"));
        clickItem(screen.window(), findItem(overlay, "menu-1"));
        QCOMPARE(card.answers, Answers{2});
    }

    void longNamesStayOnOneLine() {
        auto categories = Category::seeded();
        categories[0].name = std::string(100000, 'W');
        categories[1].name =
            "\u0627\u0644\u0628\u0631\u0645\u062C\u0629 \u0648\u0627\u0644\u062A\u0635\u0645\u064A\u0645 "
            "\u0648\u0627\u0644\u0643\u062A\u0627\u0628\u0629";
        categories[2].name = "Deep \xF0\x9F\x8E\xA7 focus\nwith a line break and invalid \xFF bytes";
        const std::string title =
            std::string("A very long window title ") + std::string(5000, 'x') + std::string("\0tail", 5);
        Card popup({1, 2, 3, 4, 5, 6}, 1s, mystery(title), categories);
        QuickScreen& screen = popup.screen;
        QQuickItem* card = screen.find("card");
        QList<QQuickItem*> texts;
        collectTexts(card, texts);
        QVERIFY(texts.size() > 12);
        for (QQuickItem* text : texts) {
            QVERIFY2(text->property("lineCount").toInt() <= 1, qPrintable(text->property("text").toString()));
            QVERIFY(text->property("height").toReal() < 24);
        }
        QVERIFY(screen.find("activityTitle")->property("truncated").toBool());
        QVERIFY(screen.saveScreenshots("approval", "long-names"));
    }

    // Where the card floats and that it closes on an answer are the end-to-end test's.
    void presenterShowsItFloatingAndReplacesIt() {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QtAppPresenter presenter;
        presenter.showApprovalPopup(mystery(), Category::seeded(), {1, 4, 6, 10, 16, 17}, [](auto) {});
        QPointer<FloatingWindow> window = presenter.approvalWindow();
        QVERIFY(window && window->view());
        QVERIFY(QTest::qWaitForWindowExposed(window));
        // A card never takes the keyboard from the application the user works in.
        QVERIFY(window->flags().testFlag(Qt::WindowDoesNotAcceptFocus));
        // Without a screen, the card stays where the window system put it.
        QCOMPARE(FloatingWindow::bottomRightPosition(nullptr, {340, 200}, {5, 6}), QPoint(5, 6));

        // A card still shown is replaced by the next one; closing one takes it away, countdown and all.
        presenter.showApprovalPopup(mystery(), Category::seeded(), {1}, [](auto) {});
        QVERIFY(presenter.approvalWindow() != window);
        QVERIFY(presenter.approvalWindow()->isVisible());
        QTRY_VERIFY(!window);
        window = presenter.approvalWindow();
        presenter.closeApprovalPopup();
        QVERIFY(!presenter.approvalWindow());
        QTRY_VERIFY(!window);

        // The welcome-back card goes through the same presentation, replacement included.
        presenter.showReturnFromIdlePopup(900, [](std::int64_t) {});
        window = presenter.idleWindow();
        QVERIFY(window && QTest::qWaitForWindowExposed(window));
        presenter.closeIdlePopup();
        QVERIFY(!presenter.idleWindow());
        QTRY_VERIFY(!window);
    }

    void welcomeBackShowsTheAbsenceAndDismissAnswersAsBreak() {
        Choices answers, dismissed;
        IdleReturnController controller(IdleReturn(5400, [&](std::int64_t id) { answers.push_back(id); }));
        IdleReturnController dismissing(IdleReturn(400, [&](std::int64_t id) { dismissed.push_back(id); }));
        // After the controllers, so that the views go first.
        QuickScreen screen;
        QVERIFY(screen.loadCard(QStringLiteral("IdleReturnView"), &controller));
        QCOMPARE(screen.text("message"), QStringLiteral("You were away for 1h 30m. What were you doing?"));
        QVERIFY(screen.find("option-4") && !screen.find("option-5"));
        QVERIFY(screen.saveScreenshots("idle-return", "options"));
        QVERIFY(screen.focusByKeyboard("option-1"));
        QVERIFY(screen.saveScreenshots("idle-return", "focus-ring"));
        QVERIFY(screen.click("option-2"));
        QVERIFY(screen.click("option-0"));
        QVERIFY(screen.loadCard(QStringLiteral("IdleReturnView"), &dismissing));
        QVERIFY(screen.click("dismiss"));
        QCOMPARE(answers, Choices{6});
        QCOMPARE(dismissed, Choices{15});
    }
};

QTEST_MAIN(ApprovalPopupViewTest)
#include "ApprovalPopupViewTest.moc"
