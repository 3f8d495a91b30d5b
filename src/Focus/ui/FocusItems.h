// The values the focus tab shows, as QML value types: the fixed labels, the timer half, one row of
// the task list and one row of the "Timer Settings" sheet.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>

namespace larkspan {

struct FocusLabels {
    Q_GADGET
    QML_VALUE_TYPE(focusLabels)
    Q_PROPERTY(QString header MEMBER header CONSTANT)
    Q_PROPERTY(QString timerSettings MEMBER timerSettings CONSTANT)
    Q_PROPERTY(QString resetCount MEMBER resetCount CONSTANT)
    Q_PROPERTY(QString tasks MEMBER tasks CONSTANT)
    Q_PROPERTY(QString clearDone MEMBER clearDone CONSTANT)
    Q_PROPERTY(QString addTask MEMBER addTask CONSTANT)
    Q_PROPERTY(QString newTaskPrompt MEMBER newTaskPrompt CONSTANT)
    Q_PROPERTY(QString add MEMBER add CONSTANT)
    Q_PROPERTY(QString cancel MEMBER cancel CONSTANT)
    Q_PROPERTY(QString emptyTasks MEMBER emptyTasks CONSTANT)
    Q_PROPERTY(QString addFirstTask MEMBER addFirstTask CONSTANT)
    Q_PROPERTY(QString taskTitlePrompt MEMBER taskTitlePrompt CONSTANT)
    Q_PROPERTY(QString settingsTitle MEMBER settingsTitle CONSTANT)
    Q_PROPERTY(QString done MEMBER done CONSTANT)
    Q_PROPERTY(QString stop MEMBER stop CONSTANT)
    Q_PROPERTY(QString skip MEMBER skip CONSTANT)
    Q_PROPERTY(QString tomato MEMBER tomato CONSTANT)
    Q_PROPERTY(QStringList modeNames MEMBER modeNames CONSTANT)  // the selector, left to right
public:
    QString header, timerSettings, resetCount, tasks, clearDone, addTask, newTaskPrompt, add, cancel,
        emptyTasks, addFirstTask, taskTitlePrompt, settingsTitle, done, stop, skip, tomato;
    QStringList modeNames;
};

// The upper half: the mode, the clock, the active task, the dots, the buttons and today's figures.
struct FocusTimer {
    Q_GADGET
    QML_VALUE_TYPE(focusTimer)
    Q_PROPERTY(int modeIndex MEMBER modeIndex)
    Q_PROPERTY(QString modeName MEMBER modeName)
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(QString displayTime MEMBER displayTime)
    Q_PROPERTY(double progress MEMBER progress)  // 0 to 1
    Q_PROPERTY(QString clockName MEMBER clockName)
    Q_PROPERTY(QString activeTaskTitle MEMBER activeTaskTitle)  // empty: no label
    Q_PROPERTY(QList<bool> dots MEMBER dots)
    Q_PROPERTY(QString dotsName MEMBER dotsName)
    Q_PROPERTY(bool showsStop MEMBER showsStop)
    Q_PROPERTY(QString mainLabel MEMBER mainLabel)
    Q_PROPERTY(bool mainPauses MEMBER mainPauses)
    Q_PROPERTY(bool showsSkip MEMBER showsSkip)
    Q_PROPERTY(QString countText MEMBER countText)
    Q_PROPERTY(QString timeText MEMBER timeText)  // empty: neither the time nor the reset button
public:
    int modeIndex = 0;
    QString modeName;
    QColor color;
    QString displayTime;
    double progress = 0;
    QString clockName, activeTaskTitle;
    QList<bool> dots;
    QString dotsName;
    bool showsStop = false;
    QString mainLabel;
    bool mainPauses = false;
    bool showsSkip = false;
    QString countText, timeText;
    bool operator==(const FocusTimer&) const = default;
};

// One task, keyed by its id.
struct TaskRowItem {
    Q_GADGET
    Q_PROPERTY(qint64 taskID MEMBER key)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(int pomodoroCount MEMBER pomodoroCount)
    Q_PROPERTY(bool isCompleted MEMBER isCompleted)
    Q_PROPERTY(bool isActive MEMBER isActive)
public:
    qint64 key = 0;
    QString title;
    int pomodoroCount = 0;
    bool isCompleted = false;
    bool isActive = false;
};

// One stepper of the settings sheet, keyed by its place in the sheet.
struct TimerSettingItem {
    Q_GADGET
    Q_PROPERTY(int index MEMBER key)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(int value MEMBER value)
    Q_PROPERTY(int lowest MEMBER lowest)
    Q_PROPERTY(int highest MEMBER highest)
    Q_PROPERTY(int step MEMBER step)
    Q_PROPERTY(QString unit MEMBER unit)
public:
    int key = 0;
    QString label;
    int value = 0, lowest = 0, highest = 0, step = 1;
    QString unit;
};

}  // namespace larkspan
