import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The review tab: the activities waiting for a category, one card each, to settle in a batch.
Item {
    id: root

    required property PendingReviewController controller

    Component.onCompleted: controller.load()

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 24
        spacing: Theme.margin

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.margin

            ColumnLayout {
                Layout.fillWidth: true
                spacing: 4

                Text {
                    objectName: "reviewHeading"
                    Layout.fillWidth: true
                    text: "Review Activities"
                    color: Theme.primaryText
                    font.pixelSize: Theme.fontTitle
                    font.weight: Font.Bold
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                Label {
                    Layout.fillWidth: true
                    text: "These activities need a category. Tap one to categorize."
                    color: Theme.secondaryText
                    font.pixelSize: Theme.fontBody
                    wrapMode: Text.Wrap
                }
            }

            Button {
                objectName: "approveAll"
                visible: root.controller.cards.count > 0
                text: "Approve All as-is"
                highlighted: true
                leftPadding: 16
                rightPadding: 16
                topPadding: 8
                bottomPadding: 8
                Accessible.name: text
                Accessible.description: "Keep the suggested category of every listed activity"
                Accessible.onPressAction: clicked()
                onClicked: root.controller.approveAll()
            }
        }

        Divider {}

        BusyIndicator {
            objectName: "loading"
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: 40
            // A reload behind shown cards keeps them: only a first load shows the indicator.
            visible: root.controller.loading && root.controller.cards.count === 0
            running: visible
            Accessible.name: "Loading"
        }

        ColumnLayout {
            objectName: "caughtUp"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: !root.controller.loading && root.controller.cards.count === 0
            spacing: Theme.spacing

            Item {
                Layout.fillHeight: true
            }
            SymbolIcon {
                Layout.alignment: Qt.AlignHCenter
                name: "checkmark.circle.fill"
                size: 48
                color: Theme.green
            }
            Text {
                objectName: "caughtUpTitle"
                Layout.alignment: Qt.AlignHCenter
                text: "All caught up!"
                color: Theme.primaryText
                font.pixelSize: Theme.fontHeadline
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Label {
                Layout.alignment: Qt.AlignHCenter
                text: "No activities need review right now."
                color: Theme.secondaryText
                font.pixelSize: Theme.fontBody
            }
            Item {
                Layout.fillHeight: true
                Layout.preferredHeight: 80
            }
        }

        ListView {
            id: list
            objectName: "cardList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            // The scroll bar sits in the page's margin, so the cards line up with the header.
            Layout.rightMargin: -12
            visible: root.controller.cards.count > 0
            clip: true
            spacing: Theme.spacingLarge
            model: root.controller.cards
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {}
            Accessible.role: Accessible.List
            Accessible.name: "Activities to review"

            delegate: PendingApprovalCard {
                id: card
                required property int index
                objectName: "card-" + index
                width: list.width - 12
                categories: root.controller.categories
                onApprove: categoryID => root.controller.approve(card.activityID, categoryID)
                onSkip: root.controller.skip(card.activityID)
                onFocusEntered: list.positionViewAtIndex(card.index, ListView.Contain)
            }

            remove: Transition {
                NumberAnimation {
                    property: "opacity"
                    to: 0
                    duration: 160
                }
            }
            displaced: Transition {
                NumberAnimation {
                    property: "y"
                    duration: 160
                    easing.type: Easing.OutCubic
                }
            }
        }
    }
}
