import QtQuick
import QtQuick.Layouts
import Larkspan

// The rows of a card's list, in a plain column inside the card's layout: a Repeater straight in a
// Qt Quick Layout can crash Qt 6.4 when its rows go (the layout keeps a freed delegate), so the rows
// stack here. Each row takes the column's width by the column's id, never through `parent`, which
// empties while a row is destroyed and would lay out its half-freed children again.
Column {
    Layout.fillWidth: true
    spacing: Theme.spacing
}
