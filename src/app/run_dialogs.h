#pragma once

#include "app/check_kind.h"

#include <QMessageBox>
#include <QString>

class QWidget;

// The boxes a conversion run shows: the two read failures, the three warnings
// with their four answers, and the conversion failure. The labels and the bold
// name format are made once, when the run starts, and shared by all its warnings.
class run_dialogs
{
public:
    explicit run_dialogs(QWidget* parent);

    void unsupported_format(const QString& file_name) const;
    void read_failed(const QString& file_name, const QString& error) const;
    // Returns the answer: Yes ("Convert"), No ("Skip"), YesToAll ("Convert All"),
    // NoToAll ("Skip All"), or Cancel for a box closed without one.
    QMessageBox::StandardButton warn(preset_kind kind, const QString& preset_name) const;
    void conversion_failed(const QString& file_name) const;

private:
    QString bold(const QString& name) const { return bold_name.arg(name); }

    QWidget* parent_window;
    const QString bold_name;
    const QString convert_label;
    const QString skip_label;
    const QString convert_all_label;
    const QString skip_all_label;
};
