#pragma once

#include <QString>
#include <QStringList>

// Installs the three catalogues of a language into the running application: Qt's
// own (file dialogs, standard buttons), the program's and the toolkit's. Returns the
// catalogues that could not be loaded; their texts stay in English, which is no
// reason to stop the program.
QStringList install_catalogues(const QString& lang);
