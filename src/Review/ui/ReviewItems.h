// The review tab's cards, as list rows.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>

namespace larkspan {

// One activity waiting for a category, keyed by its id.
struct ReviewCard {
    Q_GADGET
    Q_PROPERTY(qint64 activityID MEMBER key)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString domain MEMBER domain)  // empty when the activity has none
    Q_PROPERTY(QString appName MEMBER appName)
    Q_PROPERTY(QString timeText MEMBER timeText)
    Q_PROPERTY(QString durationText MEMBER durationText)
    // The grid's category that stands out; 0 (no category has it) when none does.
    Q_PROPERTY(qint64 suggestedID MEMBER suggestedID)
    // The card for a screen reader: title, domain, application, time and duration in one line.
    Q_PROPERTY(QString description MEMBER description)
public:
    qint64 key = 0;
    QString title, domain, appName, timeText, durationText;
    qint64 suggestedID = 0;
    QString description;
};

}  // namespace larkspan
