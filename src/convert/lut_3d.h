#pragma once

#include <QString>

class QIODevice;

#include <array>
#include <cstdint>
#include <vector>

// One entry of a colour table, stored in reverse file-column order: B, G, R, A for
// an RGB file.
using lut_entry = std::array<float, 4>;

// A three-dimensional colour table of `edge` cubed entries in one contiguous block.
// The entry for the grid indices (i, j, k) of the file's first, second and third
// column lies at (i * edge + j) * edge + k.
struct lut_3d
{
    std::int32_t edge = 17;
    std::vector<lut_entry> entries = std::vector<lut_entry>(std::size_t{17} * 17 * 17, lut_entry{});
    QString title;
};

// Fills `table` from a .3dl text file. A file that can't be opened leaves the table
// as it is; a malformed one throws orn::exception.
void load_3dl(lut_3d& table, const QString& path);

// The same for text from an open device; `path` only names it in the log.
void load_3dl(lut_3d& table, QIODevice& device, const QString& path);

// Trilinear look-up at the levels (a, b, c) of the file's first, second and third
// column, each 0 to 255. The result is in entry order: [2] is R, [1] G, [0] B.
// Levels outside 0 to 255 are clamped into it, with a warning.
lut_entry lookup(const lut_3d& table, int a, int b, int c);
