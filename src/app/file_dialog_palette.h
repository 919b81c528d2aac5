#pragma once

class QObject;

// The main window's style sheet colours the text of every widget below it light,
// and Qt's own file dialogs (shown where the desktop offers none of its own) are
// its children: on their light ground that text can hardly be read. From this call
// on, every such dialog is given the window's dark palette as it is shown, the
// folder chooser's and a run's alike. The watcher lives as long as `owner`.
void use_dark_file_dialogs(QObject* owner);
