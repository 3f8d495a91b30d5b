// The named colours and opacities every screen draws with, in one place, so that the tray, the popover,
// the dashboard and the cards agree, and core logic that picks a colour (a productivity tone, a timer
// mode, an unknown category) picks it here. The text colours are not here: they come from the desktop's
// palette, which only the toolkit knows; the opacities below are applied to them.
//
// It sits beside Color, which every subsystem from Focus to Analytics already includes.
#pragma once

#include "Classification/Category.h"

namespace larkspan {

struct Palette {
    static constexpr Color orange{1.0, 149 / 255.0, 0.0};                 // #FF9500: waiting activities
    static constexpr Color green{52 / 255.0, 199 / 255.0, 89 / 255.0};    // #34C759
    static constexpr Color red{1.0, 59 / 255.0, 48 / 255.0};              // #FF3B30
    static constexpr Color purple{175 / 255.0, 82 / 255.0, 222 / 255.0};  // #AF52DE
    static constexpr Color blue{0.0, 122 / 255.0, 1.0};                   // #007AFF
    static constexpr Color grey{142 / 255.0, 142 / 255.0, 147 / 255.0};   // #8E8E93: no known category
    static constexpr Color white{1.0, 1.0, 1.0};                          // text and symbols on a colour

    // The Pomodoro timer's modes.
    static constexpr Color focusRed{0.78, 0.22, 0.22};
    static constexpr Color shortBreakTeal{0.25, 0.6, 0.5};
    static constexpr Color longBreakBlue{0.26, 0.47, 0.7};

    // Opacities, 0 to 1. Of the desktop's text colour:
    static constexpr double secondaryText = 0.62;
    static constexpr double tertiaryText = 0.45;
    static constexpr double separator = 0.12;  // dividers and hairlines
    static constexpr double border = 0.18;     // the floating cards' edge
    static constexpr double hover = 0.07;      // a list row under the pointer
    // Of a colour, as a background:
    static constexpr double wash = 0.12;      // a card or banner in its colour
    static constexpr double faintWash = 0.1;  // the review button at rest
    static constexpr double running = 0.06;   // the timer's row while it runs
    static constexpr double track = 0.15;     // a bar's empty track, a tile at rest
    static constexpr double ringTrack = 0.2;  // the timer ring's empty circle
    static constexpr double tileHover = 0.22;
    static constexpr double tilePressed = 0.3;  // also a tile's edge
    static constexpr double buttonWash = 0.16;  // a round button in its colour
    static constexpr double buttonPressed = 0.28;
    static constexpr double pressedFill = 0.75;    // a filled button while held
    static constexpr double entryWash = 0.04;      // a line being typed into, in the accent
    static constexpr double selectedRow = 0.06;    // the chosen row of a list, in the accent
    static constexpr double hollowMark = 0.35;     // an empty dot or mark
    static constexpr double badgeText = 0.7;       // a badge's text over a faint wash of its colour
    static constexpr double suggestedFill = 0.25;  // the suggested category's tile
    static constexpr double suggestedEdge = 0.5;   // and its edge
    // Of white on a colour:
    static constexpr double onColorSecondary = 0.8;
    static constexpr double onColorTertiary = 0.6;
};

}  // namespace larkspan
