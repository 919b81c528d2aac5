#include "convert/lut_set.h"

#include <QtGlobal>

// Resources compiled into a static library are dropped by the linker unless
// something names their initialiser; it must be called from outside any namespace.
static void init_colour_table_resources()
{
    Q_INIT_RESOURCE(colour_tables);
}

namespace {

std::shared_ptr<const lut_3d> load_resource_table(const QString& path)
{
    auto table = std::make_shared<lut_3d>();
    load_3dl(*table, path);
    return table;
}

// The identity reaches 1.0 exactly at its top, unlike the loaded tables, whose
// values are fractions of 1024.
std::shared_ptr<const lut_3d> make_identity_table()
{
    auto table = std::make_shared<lut_3d>();
    table->edge = 17;
    table->entries.clear();
    table->entries.reserve(std::size_t{17} * 17 * 17);
    for (int i = 0; i < 17; ++i) {
        for (int j = 0; j < 17; ++j) {
            for (int k = 0; k < 17; ++k) {
                table->entries.push_back({k / 16.0f, j / 16.0f, i / 16.0f, 1.0f});
            }
        }
    }
    return table;
}

struct shared_tables
{
    std::shared_ptr<const lut_3d> adobe_rgb;
    std::shared_ptr<const lut_3d> srgb;
    std::shared_ptr<const lut_3d> wide_gamut;
    std::shared_ptr<const lut_3d> identity;
};

// The resource tables never change, so one parse serves the whole process.
const shared_tables& resource_tables()
{
    static const shared_tables tables = [] {
        init_colour_table_resources();
        return shared_tables{
            load_resource_table(QStringLiteral(":/data/ProPhotoRGB_to_AdobeRGB1998.3dl")),
            load_resource_table(QStringLiteral(":/data/ProPhotoRGB_to_sRGB.3dl")),
            load_resource_table(QStringLiteral(":/data/ProPhotoRGB_to_WideGamutRGB.3dl")),
            make_identity_table(),
        };
    }();
    return tables;
}

} // namespace

lut_set::lut_set()
{
    const shared_tables& tables = resource_tables();
    adobe_rgb_ = tables.adobe_rgb;
    srgb_ = tables.srgb;
    wide_gamut_ = tables.wide_gamut;
    identity_ = tables.identity;
}
