import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The day the `day` range shows, with arrows a day back and forward and a way back to today; forward
// and "Today" rest while the day is today, so no future day can be reached.
RowLayout {
    id: dayBar

    required property AnalyticsController controller

    spacing: Theme.spacing

    component DayButton: Button {
        flat: true
        focusPolicy: Qt.StrongFocus
        Accessible.onPressAction: clicked()
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
    }

    DayButton {
        objectName: "previousDay"
        icon.source: Icons.tintedSource("chevron.left", Theme.primaryText)
        Accessible.name: dayBar.controller.labels.previousDay
        onClicked: dayBar.controller.stepDay(-1)
    }
    Label {
        objectName: "dayText"
        Layout.minimumWidth: 220
        horizontalAlignment: Text.AlignHCenter
        text: dayBar.controller.header.dayText
        font.pixelSize: Theme.fontBody
        font.weight: Font.Medium
        color: Theme.primaryText
    }
    DayButton {
        objectName: "nextDay"
        enabled: dayBar.controller.header.canStepForward
        icon.source: Icons.tintedSource("chevron.right", enabled ? Theme.primaryText : Theme.tertiaryText)
        Accessible.name: dayBar.controller.labels.nextDay
        onClicked: dayBar.controller.stepDay(1)
    }
    DayButton {
        objectName: "todayButton"
        flat: false
        enabled: dayBar.controller.header.canStepForward
        text: dayBar.controller.labels.today
        Accessible.name: text
        onClicked: dayBar.controller.goToToday()
    }
}
