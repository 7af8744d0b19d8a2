#pragma once

#include <QRgb>

#include <span>

namespace graphics {

// The inner loops over one scan line. Each set gives the same bytes for the same input; they differ in the
// processor they need. Buffers may have any alignment and do not overlap, except where one is changed in
// place. The spare byte of source pixels is ignored, that of written pixels is 255.
struct PlaneKernels
{
    const char *name;
    // Y of each pixel.
    void (*luma)(const QRgb *pixels, quint8 *y, qsizetype width);
    // U and V of the pixels at even x: (width + 1) / 2 samples.
    void (*chroma)(const QRgb *pixels, quint8 *u, quint8 *v, qsizetype width);
    // Pixels from an even number of Y samples and half as many of U and V.
    void (*picture)(const quint8 *y, const quint8 *u, const quint8 *v, QRgb *pixels, qsizetype width);
    // Mixes the source into the surface by its alpha and the level, both 0 to 255. Where nothing is mixed in,
    // the surface's pixel stays as it is, its spare byte too.
    void (*compose)(QRgb *surface, const QRgb *source, const quint8 *alpha, quint8 level, qsizetype width);
};

// Alpha below this leaves the background as it is: faint alpha is cut off on purpose.
constexpr int AlphaCutOff = 38;
// The weight of a full mix. Alpha times level is at most 65025, so even a full mix lets a trace of the
// background through; this is deliberate.
constexpr int FullWeight = 65535;

// Written in the formulas' own terms; runs everywhere.
const PlaneKernels &plainKernels();
// All sets that this processor can run, the plain one first and the fastest last.
std::span<const PlaneKernels *const> usableKernels();
// The fastest of them.
const PlaneKernels &planeKernels();

} // namespace graphics
