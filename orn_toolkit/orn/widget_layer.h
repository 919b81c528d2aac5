#pragma once

class QString;

namespace orn {

// Readies the widget layer for a program with a window: registers the toolkit's
// images and has fatal messages shown in a box before the process ends. Safe to
// call more than once. It runs by itself as the application object of any program
// that links the layer is made.
void install_widget_layer();

// The box a fatal message shows: no parent, one Ok button.
void show_fatal_message(const QString& text, const QString& title);

} // namespace orn
