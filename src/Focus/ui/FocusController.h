// The focus tab's state: the shared Pomodoro timer as it moves (the popover watches the same object,
// so both show the same clock at the same moment), today's tasks loaded off the main thread, the
// task being typed and the settings sheet's steppers. What each part shows comes from
// Focus/FocusScreen and Focus/FocusTasks; this class hands it to FocusView as value items and models.
//
// Signals by cause: timerChanged for any published value of the timer (and for a load, which may
// bring or take the active task's title), tasksChanged after a load, entryChanged for the new-task line.
// The list is loaded when the view appears and after each action on a task; a finished session
// shows in a row's badge at the next load.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <vector>

#include "Focus/FocusTasks.h"
#include "Focus/ui/FocusItems.h"
#include "Platform/Subscription.h"
#include "ui/BackgroundLoad.h"
#include "ui/ValueListModel.h"

namespace larkspan {

class FocusController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the dashboard over the shared timer")

    Q_PROPERTY(FocusLabels labels READ labels CONSTANT)
    Q_PROPERTY(FocusTimer timer READ timer NOTIFY timerChanged)
    Q_PROPERTY(larkspan::ValueListModelBase* tasks READ tasks CONSTANT)
    Q_PROPERTY(bool hasCompletedTasks READ hasCompletedTasks NOTIFY tasksChanged)
    Q_PROPERTY(larkspan::ValueListModelBase* settingRows READ settingRows CONSTANT)
    Q_PROPERTY(bool isAddingTask READ isAddingTask NOTIFY entryChanged)
    Q_PROPERTY(QString newTaskTitle READ newTaskTitle WRITE setNewTaskTitle NOTIFY entryChanged)
    Q_PROPERTY(bool canAddTask READ canAddTask NOTIFY entryChanged)

public:
    // Subscribes to the timer; loads nothing yet. Every argument must outlive the controller.
    FocusController(Database& database, PomodoroTimer& timer, const Clock& clock, QObject* parent = nullptr);

    FocusLabels labels() const;
    const FocusTimer& timer() const { return timerItem_; }
    ValueListModelBase* tasks() { return &taskRows_; }
    bool hasCompletedTasks() const { return anyCompleted(tasks_); }
    ValueListModelBase* settingRows() { return &settingRows_; }
    bool isAddingTask() const { return isAddingTask_; }
    const QString& newTaskTitle() const { return newTaskTitle_; }
    void setNewTaskTitle(const QString& title);
    bool canAddTask() const;

    // Reads today's tasks in the background; tasksChanged follows on the main thread.
    Q_INVOKABLE void loadTasks();
    // Waits for the load in flight and applies it, for tests.
    void waitForLoad() { load_.wait(); }

    Q_INVOKABLE void switchMode(int modeIndex);
    // The main button: pauses a running timer, starts or resumes any other.
    Q_INVOKABLE void toggleTimer();
    Q_INVOKABLE void stopTimer();
    Q_INVOKABLE void skipTimer();
    Q_INVOKABLE void resetTodayCount();
    // A stepper: writes the timer's field at once (a running clock takes it at its next tick).
    Q_INVOKABLE void setSetting(int index, int value);
    // "Done": saves the settings and shows them on an idle clock.
    Q_INVOKABLE void applySettings();

    Q_INVOKABLE void startAddingTask();
    Q_INVOKABLE void cancelAddingTask();
    // Stores the typed title (trimmed) as today's newest, active task; does nothing for a blank one.
    Q_INVOKABLE void addTask();
    Q_INVOKABLE void selectTask(qint64 id);
    Q_INVOKABLE void toggleTaskDone(qint64 id);
    Q_INVOKABLE void deleteTask(qint64 id);
    Q_INVOKABLE void renameTask(qint64 id, const QString& title);
    Q_INVOKABLE void clearDoneTasks();

signals:
    void timerChanged();
    void tasksChanged();
    void entryChanged();

private:
    void timerMoved();
    void showTasks();
    void showSettings();
    void setAdding(bool adding);

    Database& database_;
    PomodoroTimer& pomodoroTimer_;
    const Clock& clock_;
    FocusTasks focusTasks_;
    std::vector<TodoItem> tasks_;  // of the last load
    FocusTimer timerItem_;
    ValueListModel<TaskRowItem> taskRows_;
    ValueListModel<TimerSettingItem> settingRows_;
    bool isAddingTask_ = false;
    QString newTaskTitle_;
    std::vector<Subscription> subscriptions_;
    BackgroundLoad<std::vector<TodoItem>> load_;  // last: it waits for a load in flight when it goes
};

}  // namespace larkspan
