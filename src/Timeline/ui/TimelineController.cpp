#include "Timeline/ui/TimelineController.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

#include "Classification/Palette.h"
#include "Platform/LocalDay.h"
#include "Timeline/TimelineLabels.h"
#include "ui/QtConversion.h"

namespace larkspan {

namespace {

// Canvas rows kept as items beyond the visible ones, so a short scroll creates none.
constexpr double kViewportMargin = 400;
constexpr const char* kUnknownIcon = "\u2753";
constexpr std::size_t kStripSegments = 6;

std::string shortTime(Date instant) {
    return shortTimeText(instant).toStdString();
}

QColor categoryColor(const Category* category, double opacity = 1.0) {
    return toQColor(category ? category->color() : Palette::grey, opacity);
}

QString categoryIcon(const Category* category) {
    return toQString(category ? category->icon : kUnknownIcon);
}

std::vector<CategoryCellItem> cells(const std::vector<Category>& categories) {
    std::vector<CategoryCellItem> items;
    for (const Category& category : categories)
        items.push_back({category.id, static_cast<double>(category.id), toQString(category.icon),
                         toQString(category.name), toQColor(category.color())});
    return items;
}

QString hourMinuteText(Date instant) {
    return QStringLiteral("%1:%2")
        .arg(localHour(instant), 2, 10, QLatin1Char('0'))
        .arg(localMinute(instant), 2, 10, QLatin1Char('0'));
}

}  // namespace

TimelineController::TimelineController(Database& database, DashboardController& dashboard, const Clock& clock,
                                       QObject* parent)
    : QObject(parent),
      database_(database),
      dashboard_(dashboard),
      clock_(clock),
      shownDate_(dashboard.selectedDate()),
      filterOptions_(this),
      rows_(this),
      chapters_(this),
      panelRows_(this),
      panelActivities_(this),
      panelMix_(this),
      panelCategories_(this),
      sheetCategories_(this) {
    std::vector<FilterOptionItem> options;
    for (const DurationOption& option : durationOptions)
        options.push_back({static_cast<int>(option.seconds), toQString(option.label),
                           static_cast<int>(option.seconds), option.seconds == 0});
    filterOptions_.setRows(std::move(options));
    connect(&dashboard_, &DashboardController::selectionChanged, this, [this] {
        if (dashboard_.selectedDate() != shownDate_)
            dateMoved();
    });
}

void TimelineController::dateMoved() {
    shownDate_ = dashboard_.selectedDate();
    load();
    selection_.dateChanged();
    recomputePanel();
}

void TimelineController::load() {
    const Date date = dashboard_.selectedDate();
    Database* database = &database_;
    loader_.start(
        [database, date] {
            Loaded loaded;
            loaded.dayStart = startOfLocalDay(date);
            loaded.activities = database->fetchActivities(loaded.dayStart, startOfNextLocalDay(date));
            loaded.summary = database->daySummary(date);
            return loaded;
        },
        [this](Loaded loaded) { assign(std::move(loaded)); });
}

void TimelineController::assign(Loaded loaded) {
    day_ = std::move(loaded);
    loaded_ = true;
    const Date now = clock_.now();
    const Date date = dashboard_.selectedDate();
    header_.dateText = QLocale().toString(localDateTime(date).date(), QLocale::LongFormat);
    header_.summaryText = toQString(summaryText(day_.summary));
    header_.canStepForward = canStepForward(date, now);
    header_.isToday = startOfLocalDay(date) == startOfLocalDay(now);
    nowLineY_ = header_.isToday ? larkspan::nowLineY(day_.dayStart, now) : -1;
    regroup();
    recomputePanel();
    emit dayChanged();
}

void TimelineController::regroup() {
    blocks_ = computeBlocks(day_.activities, minDurationFilter_, groupSameCategory_);
    positioned_ = layoutChapters(computeChapters(day_.activities, minDurationFilter_, groupSameCategory_),
                                 day_.dayStart);
    canvasHeight_ = larkspan::canvasHeight(positioned_);
    fillRows();
    fillCanvasWindow();
}

void TimelineController::fillRows() {
    const std::vector<Category>& categories = dashboard_.categories();
    // One format for the whole list: working it out takes longer than formatting a time.
    const QLocale locale;
    const QString format = shortTimeFormat(locale);
    const auto timeText = [&](Date instant) {
        return locale.toString(localDateTime(instant).time(), format);
    };
    std::vector<ActivityRowItem> rows;
    rows.reserve(blocks_.size());
    for (const TimelineBlock& block : blocks_) {
        const ActivityRecord& primary = block.primary();
        const Category* category = categoryWithID(categories, block.categoryID);
        ActivityRowItem row;
        row.key = block.id();
        row.blockID = static_cast<double>(block.id());
        row.icon = categoryIcon(category);
        row.color = categoryColor(category);
        row.title = toQString(primary.displayTitle());
        row.isManual = primary.isManual;
        row.pending = showsPendingDot(primary);
        row.visits = static_cast<int>(block.activities.size());
        row.timeText = timeText(block.startTime) + QStringLiteral(" \u2013 ") + timeText(block.endTime);
        row.subtitle = toQString(rowSubtitle(primary, category));
        row.duration = toQString(formatRowDuration(block.durationSeconds()));
        row.selected = selection_.block && selection_.block->id() == block.id();
        rows.push_back(std::move(row));
    }
    rows_.setRows(std::move(rows));
}

void TimelineController::fillCanvasWindow() {
    const std::vector<Category>& categories = dashboard_.categories();
    const double top = viewTop_ - kViewportMargin;
    const double bottom = viewBottom_ + kViewportMargin;
    std::vector<ChapterBoxItem> boxes;
    for (const PositionedChapter& placed : positioned_) {
        const CanvasRect& frame = placed.frame;
        if (frame.y + frame.height < top || frame.y > bottom)
            continue;
        const TimelineChapter& chapter = placed.chapter;
        const Category* category = categoryWithID(categories, chapter.dominantCategoryID());
        ChapterBoxItem box;
        box.key = chapter.id();
        box.chapterID = static_cast<double>(chapter.id());
        box.x = frame.x;
        box.y = frame.y;
        box.w = frame.width;
        box.h = frame.height;
        box.isIdle = isIdleChapter(chapter);
        box.icon = categoryIcon(category);
        box.color = categoryColor(category);
        box.title = toQString(chapterTitle(chapter));
        box.line = toQString(chapterCanvasLine(chapter));
        box.duration =
            toQString(formatDuration(box.isIdle ? chapter.wallSeconds() : chapter.engagedSeconds()));
        box.selected = selection_.chapter && selection_.chapter->id() == chapter.id();
        const std::vector<CategoryShare> breakdown = chapter.categoryBreakdown();
        std::int64_t total = 0;
        for (const CategoryShare& share : breakdown)
            total += share.secs;
        total = std::max<std::int64_t>(total, 1);
        for (std::size_t i = 0; i < std::min(breakdown.size(), kStripSegments); ++i) {
            box.stripColors.append(categoryColor(categoryWithID(categories, breakdown[i].cid)));
            box.stripHeights.append(std::max(
                2.0, frame.height * static_cast<double>(breakdown[i].secs) / static_cast<double>(total)));
        }
        boxes.push_back(std::move(box));
    }
    chapters_.setRows(std::move(boxes));
}

void TimelineController::setViewport(double top, double bottom) {
    // Items are made for a margin around the view: only a scroll past it refills the model.
    if (top >= viewTop_ - kViewportMargin / 2 && bottom <= viewBottom_ + kViewportMargin / 2 &&
        bottom - top <= viewBottom_ - viewTop_ + 1)
        return;
    viewTop_ = top;
    viewBottom_ = bottom;
    fillCanvasWindow();
}

bool TimelineController::showsShowAll() const {
    return larkspan::showsShowAll(blocks_.size(), minDurationFilter_);
}

QStringList TimelineController::hourLabels() const {
    QStringList labels;
    for (int hour = 0; hour < 24; ++hour)
        labels.append(toQString(hourLabel(hour)));
    return labels;
}

double TimelineController::presentHourY() const {
    return scrollAnchorHour(clock_.now()) * canvas::hourHeight;
}

void TimelineController::setMinDurationFilter(int seconds) {
    if (seconds == minDurationFilter_)
        return;
    minDurationFilter_ = seconds;
    std::vector<FilterOptionItem> options;
    for (const DurationOption& option : durationOptions)
        options.push_back({static_cast<int>(option.seconds), toQString(option.label),
                           static_cast<int>(option.seconds), option.seconds == seconds});
    filterOptions_.setRows(std::move(options));
    emit filterChanged();
    load();
}

void TimelineController::setGroupSameCategory(bool on) {
    if (on == groupSameCategory_)
        return;
    groupSameCategory_ = on;
    emit filterChanged();
    load();
}

void TimelineController::setListMode(bool on) {
    if (on == listMode_)
        return;
    listMode_ = on;
    emit filterChanged();
    recomputePanel();
}

void TimelineController::previousDay() {
    dashboard_.setSelectedDate(stepDays(dashboard_.selectedDate(), -1));
}

void TimelineController::nextDay() {
    if (canStepForward(dashboard_.selectedDate(), clock_.now()))
        dashboard_.setSelectedDate(stepDays(dashboard_.selectedDate(), 1));
}

void TimelineController::goToday() {
    dashboard_.setSelectedDate(clock_.now());
}

const TimelineBlock* TimelineController::blockWithID(double id) const {
    const auto found = std::find_if(blocks_.begin(), blocks_.end(), [id](const TimelineBlock& block) {
        return static_cast<double>(block.id()) == id;
    });
    return found == blocks_.end() ? nullptr : &*found;
}

void TimelineController::tapRow(double blockID) {
    if (const TimelineBlock* block = blockWithID(blockID)) {
        selection_.tapBlock(*block);
        fillRows();
        recomputePanel();
    }
}

void TimelineController::editRow(double blockID) {
    if (const TimelineBlock* block = blockWithID(blockID))
        openEdit(block->primary());
}

void TimelineController::deleteRow(double blockID) {
    const TimelineBlock* block = blockWithID(blockID);
    if (!block)
        return;
    database_.deleteActivity(block->primary().id);
    selection_.rowDeleted(block->id());
    recomputePanel();
    load();
}

void TimelineController::tapChapter(double chapterID) {
    const auto found = std::find_if(
        positioned_.begin(), positioned_.end(),
        [chapterID](const PositionedChapter& p) { return static_cast<double>(p.chapter.id()) == chapterID; });
    if (found == positioned_.end() || isIdleChapter(found->chapter))
        return;
    selection_.tapChapter(found->chapter);
    fillCanvasWindow();
    recomputePanel();
}

void TimelineController::closePanel() {
    if (listMode_)
        selection_.block.reset();
    else
        selection_.chapter.reset();
    fillRows();
    fillCanvasWindow();
    recomputePanel();
}

void TimelineController::editPanelPrimary() {
    if (listMode_ && selection_.block)
        openEdit(selection_.block->primary());
    else if (!listMode_ && selection_.chapter)
        openEdit(selection_.chapter->primaryActivity());
}

void TimelineController::editPanelActivity(double activityID) {
    const std::vector<ActivityRecord>* activities =
        listMode_ && selection_.block      ? &selection_.block->activities
        : !listMode_ && selection_.chapter ? &selection_.chapter->activities
                                           : nullptr;
    if (!activities)
        return;
    const auto found = std::find_if(
        activities->begin(), activities->end(),
        [activityID](const ActivityRecord& a) { return static_cast<double>(a.id) == activityID; });
    if (found != activities->end())
        openEdit(*found);
}

void TimelineController::deletePanelPrimary() {
    if (!listMode_ || !selection_.block)
        return;
    database_.deleteActivity(selection_.block->primary().id);
    selection_.block.reset();
    recomputePanel();
    load();
}

void TimelineController::recategorizePanel(double categoryID) {
    const auto id = static_cast<std::int64_t>(categoryID);
    if (listMode_ && selection_.block) {
        recategorize(database_, selection_.block->activities, id);
        load();
        selection_.block.reset();
    } else if (!listMode_ && selection_.chapter) {
        recategorize(database_, selection_.chapter->activities, id);
        load();
        selection_.chapter.reset();
    }
    recomputePanel();
}

void TimelineController::recomputePanel() {
    const std::vector<Category>& categories = dashboard_.categories();
    TimelinePanel panel;
    std::vector<DetailRow> detailRows;
    std::vector<PanelActivityItem> activities;
    std::vector<MixShareItem> mix;
    const auto addActivity = [&](const ActivityRecord& activity, const QString& icon) {
        activities.push_back({activity.id, static_cast<double>(activity.id), icon,
                              toQString(activity.displayTitle()), shortTimeText(activity.startTime),
                              toQString(formatRowDuration(activity.durationSeconds))});
    };
    if (listMode_ && selection_.block) {
        const TimelineBlock& block = *selection_.block;
        const ActivityRecord& primary = block.primary();
        const Category* category = categoryWithID(categories, block.categoryID);
        panel.shown = true;
        panel.isManual = primary.isManual;
        panel.icon = categoryIcon(category);
        panel.color = categoryColor(category);
        panel.title = toQString(primary.displayTitle());
        panel.caption = toQString(primary.displaySubtitle());
        panel.url = toQString(primary.url);
        panel.notes = toQString(primary.displayNotes());
        panel.currentCategoryID = static_cast<double>(block.categoryID.value_or(-1));
        panel.gridTitle = QStringLiteral("Change category");
        detailRows = blockDetailRows(block, category, shortTime);
        if (block.isMerged()) {
            panel.listTitle = toQString(std::to_string(block.activities.size()) + " visits \u00B7 " +
                                        formatDuration(block.durationSeconds()) + " engaged");
            for (const ActivityRecord& visit : block.activities)
                addActivity(visit, QString());
        }
    } else if (!listMode_ && selection_.chapter) {
        const TimelineChapter& chapter = *selection_.chapter;
        const Category* category = categoryWithID(categories, chapter.dominantCategoryID());
        panel.shown = true;
        panel.isChapter = true;
        panel.icon = categoryIcon(category);
        panel.color = categoryColor(category);
        panel.title = toQString(chapterTitle(chapter));
        panel.caption = toQString(chapterCaption(chapter, categories));
        panel.currentCategoryID = static_cast<double>(chapter.dominantCategoryID().value_or(-1));
        panel.gridTitle = QStringLiteral("Recategorize all");
        panel.listTitle = QString::number(chapter.activities.size()) + QStringLiteral(" activities");
        detailRows = chapterDetailRows(chapter, shortTime);
        int place = 0;
        for (const MixShare& share : categoryMix(chapter, categories))
            mix.push_back({place++, toQString(share.name),
                           categoryColor(categoryWithID(categories, share.cid)),
                           QString::number(share.percent) + QLatin1Char('%')});
        for (const ActivityRecord& activity : chapter.activities)
            addActivity(activity, categoryIcon(categoryWithID(categories, activity.categoryID)));
    }
    std::vector<DetailRowItem> rows;
    for (const DetailRow& row : detailRows)
        rows.push_back({toQString(row.label), toQString(row.label), toQString(row.value)});
    // Another selection is another list: no row of the old one survives.
    if (panel.title != panel_.title || panel.isChapter != panel_.isChapter) {
        panelActivities_.setRows({});
        panelRows_.setRows({});
    }
    panelRows_.setRows(std::move(rows));
    panelActivities_.setRows(std::move(activities));
    panelMix_.setRows(std::move(mix));
    panelCategories_.setRows(cells(panelGridCategories(categories)));
    if (!(panel == panel_)) {
        panel_ = std::move(panel);
        emit selectionChanged();
    }
}

void TimelineController::openEdit(const ActivityRecord& activity) {
    selection_.editing = activity;
    selection_.showManualEntry = false;
    edit_ = editSheetStart(activity);
    sheetCategories_.setRows(cells(dashboard_.categories()));
    recomputeSheet();
}

void TimelineController::openManualEntry() {
    selection_.editing.reset();
    selection_.showManualEntry = true;
    manual_ = manualSheetStart(clock_.now());
    sheetCategories_.setRows(cells(manualSheetCategories(dashboard_.categories())));
    recomputeSheet();
}

void TimelineController::recomputeSheet() {
    TimelineSheet sheet;
    const bool manual = selection_.showManualEntry;
    sheet.open = manual || selection_.editing.has_value();
    if (sheet.open) {
        sheet.manual = manual;
        const Date start = manual ? manual_.startTime : edit_.startTime;
        const Date end = manual ? manual_.endTime : edit_.endTime;
        const std::int64_t categoryID = manual ? manual_.categoryID : edit_.categoryID;
        sheet.categoryID = static_cast<double>(categoryID);
        sheet.startHour = localHour(start);
        sheet.startMinute = pickerMinuteStep(start);
        sheet.startText = hourMinuteText(start);
        sheet.endHour = localHour(end);
        sheet.endMinute = pickerMinuteStep(end);
        sheet.endText = hourMinuteText(end);
        const std::int64_t duration = sheetDuration(start, end);
        sheet.durationText = toQString(formatSheetDuration(duration));
        sheet.canSave = duration > 0;
        const Category* category = categoryWithID(dashboard_.categories(), categoryID);
        sheet.icon = categoryIcon(category);
        if (manual) {
            sheet.entryTitle = toQString(manual_.title);
            sheet.notes = toQString(manual_.notes);
        } else {
            const ActivityRecord& activity = *selection_.editing;
            sheet.recordIsManual = activity.isManual;
            sheet.title = toQString(activity.displayTitle());
            sheet.appName = activity.isManual ? QString() : toQString(activity.appName);
            sheet.notes = toQString(edit_.notes);
        }
    }
    if (!(sheet == sheet_)) {
        sheet_ = std::move(sheet);
        emit sheetChanged();
    }
}

void TimelineController::setSheetHour(int which, int hour) {
    Date& time = selection_.showManualEntry ? (which == 0 ? manual_.startTime : manual_.endTime)
                                            : (which == 0 ? edit_.startTime : edit_.endTime);
    time = withHourMinute(time, hour, localMinute(time));
    recomputeSheet();
}

void TimelineController::setSheetMinute(int which, int minute) {
    Date& time = selection_.showManualEntry ? (which == 0 ? manual_.startTime : manual_.endTime)
                                            : (which == 0 ? edit_.startTime : edit_.endTime);
    time = withHourMinute(time, localHour(time), minute);
    recomputeSheet();
}

bool TimelineController::setSheetTimeText(int which, const QString& text) {
    static const QRegularExpression pattern(QStringLiteral("^\\s*(\\d{1,2})[:.](\\d{2})\\s*$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return false;
    Date& start = selection_.showManualEntry ? manual_.startTime : edit_.startTime;
    Date& end = selection_.showManualEntry ? manual_.endTime : edit_.endTime;
    Date& time = which == 0 ? start : end;
    const Date moved = withHourMinute(time, match.captured(1).toInt(), match.captured(2).toInt());
    // The field of the start reaches up to the end, the field of the end from the start on.
    if (which == 0 ? moved > end : moved < start)
        return false;
    time = moved;
    recomputeSheet();
    return true;
}

void TimelineController::applyPreset(int index) {
    if (!selection_.showManualEntry || index < 0 || index >= static_cast<int>(startPresets.size()))
        return;
    manual_.startTime = presetStart(manual_.endTime, startPresets[static_cast<std::size_t>(index)].minutes);
    recomputeSheet();
}

void TimelineController::setSheetCategory(double categoryID) {
    (selection_.showManualEntry ? manual_.categoryID : edit_.categoryID) =
        static_cast<std::int64_t>(categoryID);
    recomputeSheet();
}

void TimelineController::setSheetTitle(const QString& title) {
    manual_.title = title.toStdString();
    recomputeSheet();
}

void TimelineController::setSheetNotes(const QString& notes) {
    (selection_.showManualEntry ? manual_.notes : edit_.notes) = notes.toStdString();
    recomputeSheet();
}

void TimelineController::saveSheet() {
    if (!sheet_.open || !sheet_.canSave)
        return;
    if (selection_.showManualEntry) {
        try {
            database_.insertActivity(manualEntry(manual_));
        } catch (const DBError&) {
            // The store refused the row (read-only, damaged): the sheet stays with what was typed.
            return;
        }
        selection_.showManualEntry = false;
        load();
    } else {
        // A refused write leaves the sheet open with what was chosen.
        if (!saveEditSheet(database_, selection_.editing->id, edit_))
            return;
        load();
        selection_.editDone();
        fillRows();
        recomputePanel();
    }
    recomputeSheet();
}

void TimelineController::cancelSheet() {
    if (selection_.editing) {
        // Cancel is the sheet's done too: the day reloads and the block panel closes.
        load();
        selection_.editDone();
        fillRows();
        recomputePanel();
    }
    selection_.showManualEntry = false;
    recomputeSheet();
}

QStringList TimelineController::pickerHourLabels() const {
    QStringList labels;
    for (int hour = 0; hour < 24; ++hour)
        labels.append(toQString(pickerHourLabel(hour)));
    return labels;
}

QStringList TimelineController::presetLabels() const {
    QStringList labels;
    for (const StartPreset& preset : startPresets)
        labels.append(toQString(preset.label));
    return labels;
}

}  // namespace larkspan
