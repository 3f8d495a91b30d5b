import QtQuick
import Larkspan

// The rounded card both floating prompts are drawn on: the window's colour, a thin border, corners of
// radius 16. Its window is transparent, so the corners show what lies behind; where the desktop cannot
// show through (no compositing), the window says so and the corners are square. Dragging the card's
// background moves the window, as the window has no frame to drag.
Rectangle {
    radius: Window.window && Window.window.squareCorners ? 0 : 16
    color: palette.window
    border.width: 1
    border.color: Theme.border

    DragHandler {
        target: null
        onActiveChanged: {
            if (active && Window.window)
                Window.window.startSystemMove()
        }
    }
}
