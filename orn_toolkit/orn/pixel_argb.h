#pragma once

#include <QtGlobal>

namespace orn {

// A four-byte colour laid out as a 32-bit ARGB pixel sits in memory on a
// little-endian machine: blue, green, red, alpha.
struct pixel_argb
{
    quint8 b = 0, g = 0, r = 0, a = 255;

    constexpr pixel_argb() = default;
    constexpr pixel_argb(quint8 red, quint8 green, quint8 blue, quint8 alpha = 255)
        : b(blue), g(green), r(red), a(alpha)
    {}

    friend constexpr bool operator==(pixel_argb x, pixel_argb y)
    {
        return x.b == y.b && x.g == y.g && x.r == y.r && x.a == y.a;
    }
    friend constexpr bool operator!=(pixel_argb x, pixel_argb y) { return !(x == y); }
};

static_assert(sizeof(pixel_argb) == 4, "pixel_argb must stay one 32-bit pixel");

} // namespace orn
