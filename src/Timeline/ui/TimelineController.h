// The day screen's state: the day of the dashboard's selectedDate loaded off the main thread, its
// blocks as list rows and its chapters as canvas boxes, the filter, the two selections with their
// panels, and the edit and manual-entry sheets. The rules come from Timeline/TimelineScreen; this class
// formats dates with the user's locale and hands value items and list models to TimelineView.
//
// Nothing refreshes the day but these: the screen coming up, another date, the filter or the switch,
// a stored manual entry, a finished edit, a delete and a panel's recategorisation. Each cause of change
// sends one signal: dayChanged after a load, filterChanged, selectionChanged, sheetChanged.
//
// The canvas model holds only the boxes that meet the visible rows (setViewport), so a day of
// thousands of activities creates a few dozen items.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QStringList>

#include <vector>

#include "App/ui/DashboardController.h"
#include "Platform/Clock.h"
#include "Timeline/CanvasLayout.h"
#include "Timeline/TimelineScreen.h"
#include "Timeline/ui/TimelineItems.h"
#include "ui/BackgroundLoad.h"
#include "ui/ValueListModel.h"

namespace larkspan {

class TimelineController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The dashboard makes its screens' controllers.")

    Q_PROPERTY(TimelineHeader header READ header NOTIFY dayChanged)
    Q_PROPERTY(larkspan::ValueListModelBase* filterOptions READ filterOptions CONSTANT)
    Q_PROPERTY(int minDurationFilter READ minDurationFilter WRITE setMinDurationFilter NOTIFY filterChanged)
    Q_PROPERTY(bool groupSameCategory READ groupSameCategory WRITE setGroupSameCategory NOTIFY filterChanged)
    Q_PROPERTY(bool listMode READ listMode WRITE setListMode NOTIFY filterChanged)
    Q_PROPERTY(larkspan::ValueListModelBase* rows READ rows CONSTANT)
    Q_PROPERTY(bool showsShowAll READ showsShowAll NOTIFY dayChanged)
    Q_PROPERTY(bool loaded READ loaded NOTIFY dayChanged)

    Q_PROPERTY(larkspan::ValueListModelBase* chapters READ chapters CONSTANT)
    Q_PROPERTY(double canvasHeight READ canvasHeight NOTIFY dayChanged)
    Q_PROPERTY(QStringList hourLabels READ hourLabels CONSTANT)
    Q_PROPERTY(double hourHeight READ hourHeight CONSTANT)
    Q_PROPERTY(double timeColumnWidth READ timeColumnWidth CONSTANT)
    Q_PROPERTY(double nowLineY READ nowLineY NOTIFY dayChanged)  // -1 on another day than today

    Q_PROPERTY(TimelinePanel panel READ panel NOTIFY selectionChanged)
    Q_PROPERTY(larkspan::ValueListModelBase* panelRows READ panelRows CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* panelActivities READ panelActivities CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* panelMix READ panelMix CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* panelCategories READ panelCategories CONSTANT)

    Q_PROPERTY(TimelineSheet sheet READ sheet NOTIFY sheetChanged)
    Q_PROPERTY(larkspan::ValueListModelBase* sheetCategories READ sheetCategories CONSTANT)
    Q_PROPERTY(QStringList pickerHourLabels READ pickerHourLabels CONSTANT)
    Q_PROPERTY(QStringList presetLabels READ presetLabels CONSTANT)

public:
    // `database`, `dashboard` and `clock` must outlive the controller.
    TimelineController(Database& database, DashboardController& dashboard, const Clock& clock,
                       QObject* parent = nullptr);

    const TimelineHeader& header() const { return header_; }
    ValueListModelBase* filterOptions() { return &filterOptions_; }
    int minDurationFilter() const { return static_cast<int>(minDurationFilter_); }
    void setMinDurationFilter(int seconds);
    bool groupSameCategory() const { return groupSameCategory_; }
    void setGroupSameCategory(bool on);
    bool listMode() const { return listMode_; }
    void setListMode(bool on);
    ValueListModelBase* rows() { return &rows_; }
    bool showsShowAll() const;
    bool loaded() const { return loaded_; }

    ValueListModelBase* chapters() { return &chapters_; }
    double canvasHeight() const { return canvasHeight_; }
    QStringList hourLabels() const;
    double hourHeight() const { return canvas::hourHeight; }
    double timeColumnWidth() const { return canvas::timeColumnWidth; }
    double nowLineY() const { return nowLineY_; }

    const TimelinePanel& panel() const { return panel_; }
    ValueListModelBase* panelRows() { return &panelRows_; }
    ValueListModelBase* panelActivities() { return &panelActivities_; }
    ValueListModelBase* panelMix() { return &panelMix_; }
    ValueListModelBase* panelCategories() { return &panelCategories_; }

    const TimelineSheet& sheet() const { return sheet_; }
    ValueListModelBase* sheetCategories() { return &sheetCategories_; }
    QStringList pickerHourLabels() const;
    QStringList presetLabels() const;

    // Reads the selected day in the background; dayChanged follows on the main thread.
    Q_INVOKABLE void load();
    // Waits for a load in flight and shows it, for tests and tools.
    void waitForLoad() { loader_.wait(); }

    Q_INVOKABLE void previousDay();
    Q_INVOKABLE void nextDay();
    Q_INVOKABLE void goToday();

    // The canvas rows now visible, in canvas points.
    Q_INVOKABLE void setViewport(double top, double bottom);
    // The canvas offset that puts the hour before the present one at the top.
    Q_INVOKABLE double presentHourY() const;

    Q_INVOKABLE void tapRow(double blockID);
    Q_INVOKABLE void editRow(double blockID);
    Q_INVOKABLE void deleteRow(double blockID);
    Q_INVOKABLE void tapChapter(double chapterID);
    Q_INVOKABLE void closePanel();
    // The panel's "Edit", and the pencil of one of its activities.
    Q_INVOKABLE void editPanelPrimary();
    Q_INVOKABLE void editPanelActivity(double activityID);
    // The block panel's "Delete"; also the Delete key on the selected row.
    Q_INVOKABLE void deletePanelPrimary();
    Q_INVOKABLE void recategorizePanel(double categoryID);

    Q_INVOKABLE void openManualEntry();
    // which: 0 start, 1 end.
    Q_INVOKABLE void setSheetHour(int which, int hour);
    Q_INVOKABLE void setSheetMinute(int which, int minute);
    // The time field: "H:mm"; false (nothing changes) for a text that is no time or lies past the other end.
    Q_INVOKABLE bool setSheetTimeText(int which, const QString& text);
    Q_INVOKABLE void applyPreset(int index);
    Q_INVOKABLE void setSheetCategory(double categoryID);
    Q_INVOKABLE void setSheetTitle(const QString& title);
    Q_INVOKABLE void setSheetNotes(const QString& notes);
    // Save Changes or Add Activity; nothing while the duration is 0. A refused insert keeps the sheet open.
    Q_INVOKABLE void saveSheet();
    Q_INVOKABLE void cancelSheet();

signals:
    void dayChanged();
    void filterChanged();
    void selectionChanged();
    void sheetChanged();

private:
    struct Loaded {
        Date dayStart = 0;
        std::vector<ActivityRecord> activities;
        DaySummary summary;
    };
    void assign(Loaded loaded);
    void regroup();
    void fillRows();
    void fillCanvasWindow();
    void recomputePanel();
    void recomputeSheet();
    void openEdit(const ActivityRecord& activity);
    void dateMoved();
    const TimelineBlock* blockWithID(double id) const;

    Database& database_;
    DashboardController& dashboard_;
    const Clock& clock_;
    BackgroundLoad<Loaded> loader_;

    Date shownDate_ = 0;
    std::int64_t minDurationFilter_ = 0;
    bool groupSameCategory_ = true;
    bool listMode_ = false;
    bool loaded_ = false;

    Loaded day_;
    std::vector<TimelineBlock> blocks_;
    std::vector<PositionedChapter> positioned_;
    TimelineSelection selection_;
    double viewTop_ = 0;
    double viewBottom_ = 900;
    double canvasHeight_ = canvas::hourHeight * 24;
    double nowLineY_ = -1;

    TimelineHeader header_;
    ValueListModel<FilterOptionItem> filterOptions_;
    ValueListModel<ActivityRowItem> rows_;
    ValueListModel<ChapterBoxItem> chapters_;
    TimelinePanel panel_;
    ValueListModel<DetailRowItem> panelRows_;
    ValueListModel<PanelActivityItem> panelActivities_;
    ValueListModel<MixShareItem> panelMix_;
    ValueListModel<CategoryCellItem> panelCategories_;

    // The open sheet's values; only one of the two is in use.
    EditSheetValues edit_;
    ManualSheetValues manual_;
    TimelineSheet sheet_;
    ValueListModel<CategoryCellItem> sheetCategories_;
};

}  // namespace larkspan
