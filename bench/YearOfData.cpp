#include "YearOfData.h"

#include <array>
#include <random>
#include <string>

#include "Platform/LocalDay.h"

namespace larkspan::bench {

namespace {

struct App {
    const char* name;
    const char* bundleID;
    std::int64_t category;
    int weight;  // relative share of switches
};

// Browsers carry a domain; the rest a title of their own.
constexpr std::array kApps{
    App{"Code", "com.microsoft.VSCode", 1, 22},
    App{"kitty", "net.kovidgoyal.kitty", 2, 12},
    App{"Firefox", "org.mozilla.firefox", 0, 20},
    App{"Google Chrome", "com.google.Chrome", 0, 10},
    App{"Slack", "com.tinyspeck.slackmacgap", 7, 9},
    App{"Thunderbird", "org.larkspan.role.mail", 7, 6},
    App{"LibreOffice Writer", "org.libreoffice.LibreOffice.writer", 3, 5},
    App{"Zoom", "us.zoom.xos", 8, 3},
    App{"Spotify", "com.spotify.client", 11, 4},
    App{"Files", "org.larkspan.role.files", 20, 4},
    App{"Figma", "com.figma.Desktop", 6, 3},
    App{"Steam", "com.valvesoftware.steam", 12, 2},
};

struct Site {
    const char* domain;
    std::int64_t category;
};

constexpr std::array kSites{
    Site{"github.com", 1},
    Site{"stackoverflow.com", 1},
    Site{"docs.python.org", 4},
    Site{"youtube.com", 10},
    Site{"news.ycombinator.com", 13},
    Site{"reddit.com", 13},
    Site{"mail.google.com", 7},
    Site{"calendar.google.com", 8},
    Site{"en.wikipedia.org", 4},
    Site{"twitter.com", 13},
    Site{"netflix.com", 10},
    Site{"amazon.com", 14},
    Site{"linear.app", 9},
    Site{"notion.so", 3},
    Site{"localhost", 1},
};

class DayWriter {
public:
    DayWriter(Database& database, unsigned seed) : database_(database), random_(seed) {
        for (const App& app : kApps)
            totalWeight_ += app.weight;
    }

    // One day from `midnight`: `count` activities from the morning on, each a few seconds to a few
    // minutes, with an away span over lunch.
    std::int64_t writeDay(Date midnight, int count) {
        Date at = midnight + 8.5 * 3600 + uniform(0, 3600);
        const int lunchAfter = count / 2;
        for (int i = 0; i < count; ++i) {
            if (i == lunchAfter) {
                const auto away = static_cast<std::int64_t>(uniform(1800, 3600));
                ActivityRecord idle = ActivityRecord::idle(at);
                idle.endTime = at + static_cast<double>(away);
                idle.durationSeconds = away;
                database_.insertActivity(idle);
                at += static_cast<double>(away);
            }
            ActivityRecord record = next(at);
            database_.insertActivity(record);
            at += static_cast<double>(record.durationSeconds) + uniform(0, 2);
        }
        return count + (count > 0 ? 1 : 0);
    }

    int uniform(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

private:
    const App& pickApp() {
        int ticket = uniform(1, totalWeight_);
        for (const App& app : kApps) {
            ticket -= app.weight;
            if (ticket <= 0)
                return app;
        }
        return kApps.front();
    }

    ActivityRecord next(Date at) {
        const App& app = pickApp();
        ActivityRecord record;
        record.appName = app.name;
        record.bundleID = app.bundleID;
        record.categoryID = app.category;
        if (app.category == 0) {
            const Site& site = kSites[static_cast<std::size_t>(uniform(0, kSites.size() - 1))];
            record.urlDomain = site.domain;
            record.url = std::string("https://") + site.domain + "/page/" + std::to_string(uniform(1, 500));
            record.windowTitle = "Page " + std::to_string(uniform(1, 500)) + " - " + site.domain;
            record.categoryID = site.category;
        } else {
            record.windowTitle = std::string(app.name) + " — document " + std::to_string(uniform(1, 80));
        }
        record.confidence = 0.9;
        record.isApproved = true;
        // One in a hundred is left for the user to categorize.
        if (uniform(1, 100) == 1) {
            record.categoryID = 21;
            record.confidence = 0.3;
            record.needsApproval = true;
            record.isApproved = false;
        }
        // Mostly short switches, now and then a long stretch of work.
        const int seconds = uniform(1, 10) == 1 ? uniform(120, 900) : uniform(4, 40);
        record.startTime = at;
        record.endTime = at + seconds;
        record.durationSeconds = seconds;
        return record;
    }

    Database& database_;
    std::mt19937 random_;
    int totalWeight_ = 0;
};

}  // namespace

std::int64_t writeHistory(Database& database, Date lastDay, const HistoryShape& shape) {
    DayWriter writer(database, shape.seed);
    std::int64_t written = 0;
    Date day = startOfLocalDay(lastDay);
    for (int i = 1; i < shape.days; ++i)
        day = startOfLocalDay(day - 3600);
    database.exec("BEGIN");
    for (int i = 0; i < shape.days; ++i, day = startOfNextLocalDay(day)) {
        const int weekday = localFields(day).value_or(std::tm{}).tm_wday;
        const bool weekend = weekday == 0 || weekday == 6;
        const int base = weekend ? shape.activitiesPerWorkday / 3 : shape.activitiesPerWorkday;
        written += writer.writeDay(day, base + writer.uniform(-base / 10, base / 10));
        // Pomodoros on four workdays in five.
        if (!weekend && writer.uniform(1, 5) != 1) {
            for (int p = writer.uniform(2, 9); p > 0; --p)
                database.incrementDailyPomoCount(day + 12 * 3600);
        }
    }
    database.exec("COMMIT");
    return written;
}

}  // namespace larkspan::bench
