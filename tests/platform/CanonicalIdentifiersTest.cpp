#include "Platform/Linux/CanonicalIdentifiers.h"

#include <gtest/gtest.h>

#include <set>

#include "Classification/AppRules.h"
#include "Tracking/BrowserTracker.h"
#include "Tracking/IdleMonitor.h"

namespace larkspan {
namespace {

TEST(CanonicalIdentifiers, EveryRowIsLowerCaseUniqueAndNamesARuleIdentifier) {
    std::set<std::string_view> keys;
    for (const auto& row : canonicalIdentifiers()) {
        EXPECT_TRUE(keys.insert(row.key).second) << "duplicate key " << row.key;
        for (char c : row.key)
            EXPECT_FALSE(c >= 'A' && c <= 'Z') << row.key;
        // Of use only if a rule, the browser list or the idle thresholds know the identifier.
        const std::string identifier(row.identifier);
        EXPECT_TRUE(classifyByBundleID(identifier) || BrowserTracker::isBrowser(identifier) ||
                    IdleMonitor::idleThreshold(identifier) == IdleMonitor::mediaThreshold)
            << row.key << " -> " << row.identifier;
    }
}

TEST(CanonicalIdentifiers, ShipsOfOneProductMeetAtOneIdentifier) {
    // Distribution package, Flatpak id and window class of a product meet; compared ignoring case.
    for (const auto& [key, identifier] : std::vector<std::pair<const char*, const char*>>{
             {"firefox", "org.mozilla.firefox"},
             {"XTerm", "org.larkspan.role.terminal"},
             {"com.spotify.Client", "com.spotify.client"},
         }) {
        EXPECT_EQ(canonicalIdentifier(key).value_or("(none)"), identifier) << key;
    }
    // Anything else is left alone.
    for (const char* key : {"org.gnome.Epiphany", "xterm-256color", "", "firefox.desktop", "FIREFOX "}) {
        EXPECT_FALSE(canonicalIdentifier(key)) << key;
    }
}

}  // namespace
}  // namespace larkspan
