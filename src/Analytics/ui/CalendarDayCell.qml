import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// One day of the calendar grid: its number, a circle coloured by how productive it was with the hours
// over it, and its finished pomodoros; today is ringed, the selected day tinted. Days to come are
// drawn faint and take no press. A row of the controller's day model; blanks before the 1st draw
// nothing and are hidden from screen readers.
AbstractButton {
    // Qt 6.4's buttons offer Press to a screen reader but do nothing on it: do what a click does.
    Accessible.onPressAction: clicked()
    id: cell

    required property bool isEmpty
    required property int day
    required property color circleColor
    required property string hoursText
    required property string pomodoroText
    required property bool isSelected
    required property bool isToday
    required property bool isFuture
    required property string accessibleName

    implicitHeight: isEmpty ? 56 : 68
    enabled: !isEmpty && !isFuture
    // A blank keeps its column in the grid without being drawn.
    opacity: isEmpty ? 0 : 1
    Accessible.ignored: isEmpty
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.name: accessibleName
    Accessible.selectable: true
    Accessible.selected: isSelected
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Rectangle {
        radius: 8
        color: cell.isSelected ? Theme.tint(palette.highlight, Theme.ringTrack)
                               : cell.hovered ? Theme.hover : "transparent"
        border.width: cell.isToday || cell.visualFocus ? 2 : 0
        border.color: palette.highlight
    }

    contentItem: ColumnLayout {
        spacing: 2

        Text {
            objectName: "dayNumber"
            Layout.alignment: Qt.AlignHCenter
            text: cell.day
            color: cell.isFuture ? Theme.tertiaryText : Theme.primaryText
            font.pixelSize: Theme.fontSmall
            font.weight: cell.isToday ? Font.Bold : Font.Normal
        }
        Rectangle {
            Layout.alignment: Qt.AlignHCenter
            implicitWidth: 26
            implicitHeight: 26
            radius: 13
            color: cell.circleColor

            Text {
                objectName: "hours"
                anchors.centerIn: parent
                text: cell.hoursText
                color: Theme.primaryText
                font.pixelSize: Theme.fontCaption
                font.weight: Font.DemiBold
            }
        }
        CalendarFigure {
            objectName: "pomodoros"
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredHeight: 12
            text: cell.pomodoroText
            color: Theme.secondaryText
            pixelSize: Theme.fontTiny
        }
    }
}
