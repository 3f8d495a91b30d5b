// The review tab over a real store: empty and a few cards; a pick, "Skip" and
// "Approve All as-is" settle cards, and the highlighted tile is the suggestion.
#include "DashboardRig.h"

using namespace larkspan;

namespace {

struct Review : test::DashboardScreen {
    std::int64_t add(int i, std::optional<std::int64_t> category, std::string title = "Quarterly plan",
                     std::optional<std::string> domain = "docs.example.org") {
        return db.insertActivity(test::ActivityBuilder(0, clock.now() - 600.0 * (i + 1), 65 + 60 * i)
                                     .app("Firefox", "org.mozilla.firefox")
                                     .title(std::move(title))
                                     .domain(std::move(domain))
                                     .category(category)
                                     .pending(0.4));
    }
    bool load() {
        const bool loaded = show("PendingReviewView", *screens.review(), {900, 700});
        screen.grab();  // lays the cards out
        return loaded;
    }
};

}  // namespace

class PendingReviewViewTest : public QObject {
    Q_OBJECT
private slots:
    void cardsSettleByPickSkipAndApproveAllUntilCaughtUp() {
        Review review;
        const auto first = review.add(
            0, category_id::coding,
            "\u05de\u05e1\u05de\u05da \u05d0\u05e8\u05d5\u05da \U0001F680 " + std::string(300, 'w'),
            std::nullopt);
        review.add(1, category_id::awayBreak);
        review.add(2, std::nullopt);
        QVERIFY(review.load());
        QCOMPARE(review.screen.find("cardList")->property("count").toInt(), 3);
        QVERIFY(review.screen.text("cardMeta").startsWith(QStringLiteral("Firefox")));
        // The suggestion stands out: Coding is the first tile.
        QVERIFY(review.screen.find("category-0")->property("suggested").toBool());
        QVERIFY(review.screen.saveScreenshots("review", "three-cards"));

        // A pick: approved with that category, the card goes.
        QVERIFY(review.screen.press("category-10"));
        QCOMPARE(review.db.fetchActivity(first)->categoryID, category_id::research);
        review.screens.review()->waitForLoad();
        QTRY_COMPARE(review.screen.find("cardList")->property("count").toInt(), 2);

        // The faded card may linger in the tree: the first card now is the next one.
        QVERIFY(QMetaObject::invokeMethod(findItem(review.screen.find("card-0"), "skip"), "clicked"));
        QCOMPARE(review.db.pendingApprovalCount(), 1);

        QVERIFY(review.screen.press("approveAll"));
        review.screens.review()->waitForLoad();
        QTRY_VERIFY(review.screen.find("caughtUp")->isVisible());
        QVERIFY(!review.screen.find("approveAll")->isVisible());
        QCOMPARE(review.db.pendingApprovalCount(), 0);
        QVERIFY(review.screen.saveScreenshots("review", "empty"));
    }
};

QTEST_MAIN(PendingReviewViewTest)
#include "PendingReviewViewTest.moc"
