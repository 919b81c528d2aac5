#include "converter/preset_files.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace {

bool is_preset_suffix(const QFileInfo& info)
{
    const QString suffix = info.suffix().toLower();
    return suffix == QLatin1String("xmp") || suffix == QLatin1String("lrtemplate") ||
           suffix == QLatin1String("zip");
}

QStringList presets_below(const QString& folder)
{
    QStringList found;
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        if (is_preset_suffix(it.fileInfo())) {
            found << it.filePath();
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace

preset_inputs collect_preset_files(const QStringList& paths)
{
    preset_inputs inputs;
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (info.isDir()) {
            inputs.files << presets_below(path);
        } else if (info.exists()) {
            inputs.files << path;
        } else {
            inputs.missing << path;
        }
    }
    return inputs;
}
