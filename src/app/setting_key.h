#pragma once

#include <QSettings>
#include <QString>
#include <QVariant>

// A persisted setting with the value it has while nothing is stored. Reading never
// writes: a first start shows the default without putting it in the store.
struct setting_key
{
    QString key;
    QVariant default_value;

    QString read(const QSettings& settings) const;
};

// The folder the open dialog of a run starts in, and the folder the styles go to.
// Both default to the user's pictures folder.
extern const setting_key input_dir_key;
extern const setting_key output_dir_key;
