// The buttons as a screen reader meets them.
#pragma once

/// From here on the toggle of an assistive program does what a click does: the toolkit's own only turns
/// the button, and the window never hears of it. A cell of a ticket, a checkable tool button, says its
/// state in its name too ("Número 7, marcado"). Once, when the program begins.
void InstalarAccesibilidad();
