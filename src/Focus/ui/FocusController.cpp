#include "Focus/ui/FocusController.h"

#include <algorithm>

#include "Focus/FocusScreen.h"
#include "ui/QtConversion.h"

namespace larkspan {

namespace {

int clampToInt(std::int64_t value) {
    return static_cast<int>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
}

}  // namespace

FocusController::FocusController(Database& database, PomodoroTimer& timer, const Clock& clock,
                                 QObject* parent)
    : QObject(parent),
      database_(database),
      pomodoroTimer_(timer),
      clock_(clock),
      focusTasks_(database, timer, clock),
      taskRows_(this),
      settingRows_(this) {
    // Each subscription delivers its current value at once, which fills the items.
    const auto moved = [this](const auto&) { timerMoved(); };
    for (Published<std::int64_t>* value :
         {&timer.secondsLeft, &timer.sessionInCycle, &timer.todayCount, &timer.focusMinutes,
          &timer.shortBreakMinutes, &timer.longBreakMinutes, &timer.sessionsBeforeLongBreak})
        subscriptions_.push_back(value->subscribe(moved));
    subscriptions_.push_back(timer.mode.subscribe(moved));
    subscriptions_.push_back(timer.runState.subscribe(moved));
    // The rows' highlight follows the active task.
    subscriptions_.push_back(timer.activeTaskID.subscribe([this](const auto&) {
        showTasks();
        timerMoved();
    }));
    subscriptions_.push_back(timer.focusMinutes.subscribe([this](const auto&) { showSettings(); }));
    subscriptions_.push_back(timer.shortBreakMinutes.subscribe([this](const auto&) { showSettings(); }));
    subscriptions_.push_back(timer.longBreakMinutes.subscribe([this](const auto&) { showSettings(); }));
    subscriptions_.push_back(
        timer.sessionsBeforeLongBreak.subscribe([this](const auto&) { showSettings(); }));
}

FocusLabels FocusController::labels() const {
    FocusLabels labels{focus_text::header,
                       focus_text::timerSettings,
                       focus_text::resetCount,
                       focus_text::tasks,
                       focus_text::clearDone,
                       focus_text::addTask,
                       focus_text::newTaskPrompt,
                       focus_text::add,
                       focus_text::cancel,
                       focus_text::emptyTasks,
                       focus_text::addFirstTask,
                       focus_text::taskTitlePrompt,
                       focus_text::settingsTitle,
                       focus_text::done,
                       focus_text::stop,
                       focus_text::skip,
                       toQString(focus_text::tomato),
                       {}};
    for (PomodoroMode mode : kAllPomodoroModes)
        labels.modeNames.append(toQString(rawValue(mode)));
    return labels;
}

void FocusController::timerMoved() {
    const PomodoroTimer& t = pomodoroTimer_;
    const PomodoroMode mode = t.mode.get();
    const FocusButtons buttons = focusButtons(t.runState.get());
    const double progress = std::clamp(t.progress(), 0.0, 1.0);
    FocusTimer next;
    next.modeIndex = static_cast<int>(std::find(kAllPomodoroModes.begin(), kAllPomodoroModes.end(), mode) -
                                      kAllPomodoroModes.begin());
    next.modeName = toQString(rawValue(mode));
    next.color = toQColor(t.modeColor());
    next.displayTime = toQString(t.displayTime());
    next.progress = progress;
    next.clockName = toQString(clockName(mode, t.displayTime(), progress));
    next.activeTaskTitle = toQString(activeTaskTitle(t.runState.get(), t.activeTaskID.get(), tasks_));
    for (bool filled : cycleDots(t.sessionsBeforeLongBreak.get(), t.dotsFilled()))
        next.dots.append(filled);
    next.dotsName = toQString(cycleDotsName(t.sessionsBeforeLongBreak.get(), t.dotsFilled()));
    next.showsStop = buttons.showsStop;
    next.mainLabel = toQString(buttons.mainLabel);
    next.mainPauses = buttons.mainPauses;
    next.showsSkip = buttons.showsSkip;
    next.countText = toQString(todayCountText(t.todayCount.get()));
    next.timeText = toQString(todayTimeText(t.todayCount.get(), t.focusMinutes.get()));
    if (next == timerItem_)
        return;
    timerItem_ = std::move(next);
    emit timerChanged();
}

void FocusController::showTasks() {
    const std::optional<std::int64_t> active = pomodoroTimer_.activeTaskID.get();
    std::vector<TaskRowItem> rows;
    rows.reserve(tasks_.size());
    for (const TodoItem& task : tasks_)
        rows.push_back(
            {task.id, toQString(task.title), task.pomodoroCount, task.isCompleted, active == task.id});
    taskRows_.setRows(std::move(rows));
}

void FocusController::showSettings() {
    std::vector<TimerSettingItem> rows;
    for (std::size_t i = 0; i < kTimerSettingRows.size(); ++i) {
        const TimerSettingRow& row = kTimerSettingRows[i];
        rows.push_back({static_cast<int>(i), toQString(row.label),
                        clampToInt(settingField(pomodoroTimer_, row.setting).get()), clampToInt(row.lowest),
                        clampToInt(row.highest), clampToInt(row.step), toQString(row.unit)});
    }
    settingRows_.setRows(std::move(rows));
}

void FocusController::loadTasks() {
    // "Today" is taken here, on the main thread, where the clock lives.
    load_.start([database = &database_, now = clock_.now()] { return database->fetchTodayTodos(now); },
                [this](std::vector<TodoItem> loaded) {
                    tasks_ = std::move(loaded);
                    showTasks();
                    timerMoved();
                    emit tasksChanged();
                });
}

void FocusController::switchMode(int modeIndex) {
    if (modeIndex >= 0 && modeIndex < static_cast<int>(kAllPomodoroModes.size()))
        pomodoroTimer_.switchMode(kAllPomodoroModes[static_cast<std::size_t>(modeIndex)]);
}

void FocusController::toggleTimer() {
    if (focusButtons(pomodoroTimer_.runState.get()).mainPauses)
        pomodoroTimer_.pause();
    else
        pomodoroTimer_.start();
}

void FocusController::stopTimer() {
    pomodoroTimer_.stop();
}

void FocusController::skipTimer() {
    pomodoroTimer_.skip();
}

void FocusController::resetTodayCount() {
    pomodoroTimer_.resetTodayCount();
}

void FocusController::setSetting(int index, int value) {
    if (index >= 0 && index < static_cast<int>(kTimerSettingRows.size())) {
        const TimerSettingRow& row = kTimerSettingRows[static_cast<std::size_t>(index)];
        settingField(pomodoroTimer_, row.setting)
            .set(std::clamp<std::int64_t>(value, row.lowest, row.highest));
    }
}

void FocusController::applySettings() {
    pomodoroTimer_.applySettings();
}

void FocusController::setNewTaskTitle(const QString& title) {
    if (title == newTaskTitle_)
        return;
    newTaskTitle_ = title;
    emit entryChanged();
}

bool FocusController::canAddTask() const {
    return taskTitleToSave(newTaskTitle_.toStdString()).has_value();
}

void FocusController::setAdding(bool adding) {
    isAddingTask_ = adding;
    if (!adding)
        newTaskTitle_.clear();
    emit entryChanged();
}

void FocusController::startAddingTask() {
    setAdding(true);
}

void FocusController::cancelAddingTask() {
    setAdding(false);
}

void FocusController::addTask() {
    if (!focusTasks_.add(newTaskTitle_.toStdString()))
        return;
    setAdding(false);
    loadTasks();
}

void FocusController::selectTask(qint64 id) {
    focusTasks_.select(id);
}

void FocusController::toggleTaskDone(qint64 id) {
    focusTasks_.toggleDone(id);
    loadTasks();
}

void FocusController::deleteTask(qint64 id) {
    focusTasks_.remove(id);
    loadTasks();
}

void FocusController::renameTask(qint64 id, const QString& title) {
    focusTasks_.rename(id, title.toStdString());
    loadTasks();
}

void FocusController::clearDoneTasks() {
    focusTasks_.clearDone();
    loadTasks();
}

}  // namespace larkspan
