#pragma once

#include <QStringList>

// The files a batch converts, from the command line's paths: a file is taken as
// given (its suffix is judged later, as for any preset); a folder stands for every
// .xmp, .lrtemplate and .zip file below it, suffix compared in lower case,
// recursively, in path order. Paths that don't exist are listed in `missing`.
struct preset_inputs
{
    QStringList files;
    QStringList missing;
};

preset_inputs collect_preset_files(const QStringList& paths);
