import QtQuick
import QtQuick.Shapes
import Larkspan

// A circle in `color` at `trackOpacity` with an arc over it from the top, clockwise, covering
// `progress` (clamped to 0…1) with round ends; a change of progress runs linearly over half a second,
// the timer's tick. The Pomodoro clock in the popover and on the focus tab. Whoever places it gives
// it its accessible name, the figure it shows.
Item {
    id: ring

    property real progress: 0
    property color color: palette.highlight
    property real lineWidth: 4
    property real trackOpacity: Theme.ringTrack

    property real shownProgress: Math.min(1, Math.max(0, progress))
    Behavior on shownProgress {
        NumberAnimation { duration: 500; easing.type: Easing.Linear }
    }

    Accessible.role: Accessible.ProgressBar

    Shape {
        anchors.fill: parent
        ShapePath {
            strokeWidth: ring.lineWidth
            strokeColor: Theme.tint(ring.color, ring.trackOpacity)
            fillColor: "transparent"
            PathAngleArc {
                centerX: ring.width / 2; centerY: ring.height / 2
                radiusX: (ring.width - ring.lineWidth) / 2; radiusY: (ring.height - ring.lineWidth) / 2
                startAngle: 0; sweepAngle: 360
            }
        }
        ShapePath {
            strokeWidth: ring.lineWidth
            strokeColor: ring.shownProgress > 0 ? ring.color : "transparent"
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap
            PathAngleArc {
                centerX: ring.width / 2; centerY: ring.height / 2
                radiusX: (ring.width - ring.lineWidth) / 2; radiusY: (ring.height - ring.lineWidth) / 2
                startAngle: -90
                sweepAngle: 360 * ring.shownProgress
            }
        }
    }
}
