import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The day header: previous day, the date over the day's summary, next day, "Today" and the manual entry.
RowLayout {
    id: header

    required property TimelineController controller

    spacing: Theme.spacing

    TimelineSymbolButton {
        objectName: "previousDay"
        symbol: "chevron.left"
        help: "Previous day"
        onClicked: header.controller.previousDay()
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 2
        Text {
            objectName: "dateText"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: header.controller.header.dateText
            color: Theme.primaryText
            font.pixelSize: Theme.fontHeadline
            font.weight: Font.DemiBold
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Label {
            objectName: "summaryText"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: header.controller.header.summaryText
            color: Theme.secondaryText
            font.pixelSize: Theme.fontCaption
            elide: Text.ElideRight
        }
    }
    TimelineSymbolButton {
        objectName: "nextDay"
        symbol: "chevron.right"
        help: "Next day"
        enabled: header.controller.header.canStepForward
        onClicked: header.controller.nextDay()
    }
    Button {
        objectName: "todayButton"
        text: "Today"
        flat: true
        font.pixelSize: Theme.fontCaption
        focusPolicy: Qt.StrongFocus
        Accessible.name: text
        Accessible.onPressAction: clicked()
        onClicked: header.controller.goToday()
    }
    TimelineSymbolButton {
        objectName: "addManual"
        symbol: "plus.circle.fill"
        help: "Add manual activity"
        tint: palette.highlight
        symbolSize: 20
        onClicked: header.controller.openManualEntry()
    }
}
