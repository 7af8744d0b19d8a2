#include "graphics/planes.h"

#include "common/colour.h"
#include "graphics/plane_kernels.h"
#include "graphics/scan_lines.h"

#include <algorithm>
#include <cstring>

namespace graphics {

namespace {

constexpr int WidthStep = 8;
constexpr int HeightStep = 2;

qsizetype area(QSize size) { return qsizetype{size.width()} * size.height(); }

bool hasSize(const QByteArray &plane, QSize size) { return plane.size() == area(size); }

bool covers(const QByteArray &plane, QSize size) { return plane.size() >= area(size); }

QByteArray newPlane(QSize size) { return QByteArray(area(size), Qt::Uninitialized); }

QSize positive(QSize size) { return size.isEmpty() ? QSize(0, 0) : size; }

// A plane that is written row by row.
class Rows
{
public:
    Rows(QByteArray &plane, QSize size) : m_bytes(reinterpret_cast<quint8 *>(plane.data())), m_size(size) {}

    quint8 *row(int y) { return m_bytes + qsizetype{y} * m_size.width(); }
    void fill(int y, int fromX, quint8 value)
    {
        if (y < m_size.height() && fromX < m_size.width())
            std::memset(row(y) + fromX, value, static_cast<std::size_t>(m_size.width() - fromX));
    }

private:
    quint8 *m_bytes;
    QSize m_size;
};

const quint8 *rowOf(const QByteArray &plane, int width, int y)
{
    return reinterpret_cast<const quint8 *>(plane.constData()) + qsizetype{y} * width;
}

// Rows of chroma for every row of pixels: the last one serves on, and planes without any are grey.
class ChromaRows
{
public:
    explicit ChromaRows(const Planes &planes)
        : m_planes(planes), m_size(chromaSize(planes.size())), m_grey(planes.width / 2 + 1, '\x80')
    {
    }

    const quint8 *u(int y) const { return row(m_planes.u, y); }
    const quint8 *v(int y) const { return row(m_planes.v, y); }
    int lastX() const { return std::max(m_size.width() - 1, 0); }

private:
    const quint8 *row(const QByteArray &plane, int y) const
    {
        return m_size.isEmpty() ? rowOf(m_grey, 0, 0)
                                : rowOf(plane, m_size.width(), std::min(y / 2, m_size.height() - 1));
    }

    const Planes &m_planes;
    QSize m_size;
    QByteArray m_grey;
};

} // namespace

Planes Planes::ofSize(QSize wanted)
{
    const QSize size = positive(wanted);
    const QSize chroma = chromaSize(size);
    return {size.width(), size.height(), newPlane(size), newPlane(chroma), newPlane(chroma)};
}

bool Planes::isComplete() const
{
    const QSize chroma = chromaSize(size());
    return !size().isEmpty() && hasSize(y, size()) && covers(u, chroma) && covers(v, chroma);
}

AlphaPlane AlphaPlane::ofSize(QSize wanted)
{
    const QSize size = positive(wanted);
    return {size.width(), size.height(), newPlane(size)};
}

bool AlphaPlane::isComplete() const { return !size().isEmpty() && hasSize(values, size()); }

QSize alignedSize(QSize size)
{
    return {(size.width() + WidthStep - 1) / WidthStep * WidthStep,
            (size.height() + HeightStep - 1) / HeightStep * HeightStep};
}

QSize paddedSize(QSize picture)
{
    return {picture.width() + WidthStep - picture.width() % WidthStep,
            picture.height() + HeightStep - picture.height() % HeightStep};
}

Planes toPlanes(const QImage &picture, QSize size)
{
    Planes planes = Planes::ofSize(size);
    fillPlanes(planes, picture);
    return planes;
}

void fillPlanes(Planes &planes, const QImage &picture)
{
    const QImage source = withPixels(picture);
    const PlaneKernels &kernels = planeKernels();
    const common::Yuv outside = common::toYuv(OutsideColour);
    const QSize chroma = chromaSize(planes.size());
    const QSize inside = source.size().boundedTo(planes.size());
    // Of an odd last column of the planes there is no sample.
    const int sampledWidth = std::min(inside.width(), 2 * chroma.width());
    Rows y(planes.y, planes.size());
    Rows u(planes.u, chroma);
    Rows v(planes.v, chroma);
    for (int row = 0; row < planes.height; ++row) {
        const bool hasPixels = row < inside.height();
        if (hasPixels)
            kernels.luma(pixelsOf(source, row), y.row(row), inside.width());
        y.fill(row, hasPixels ? inside.width() : 0, outside.y);
        if (row % 2 != 0 || row / 2 >= chroma.height())
            continue;
        if (hasPixels)
            kernels.chroma(pixelsOf(source, row), u.row(row / 2), v.row(row / 2), sampledWidth);
        u.fill(row / 2, hasPixels ? (sampledWidth + 1) / 2 : 0, outside.u);
        v.fill(row / 2, hasPixels ? (sampledWidth + 1) / 2 : 0, outside.v);
    }
}

AlphaPlane toAlphaPlane(const QImage &alphaPicture, QSize size)
{
    const QImage source = withPixels(alphaPicture);
    AlphaPlane alpha = AlphaPlane::ofSize(size);
    const QSize inside = source.size().boundedTo(alpha.size());
    Rows rows(alpha.values, alpha.size());
    for (int y = 0; y < alpha.height; ++y) {
        const bool hasPixels = y < inside.height();
        if (hasPixels) {
            const QRgb *pixels = pixelsOf(source, y);
            std::transform(pixels, pixels + inside.width(), rows.row(y),
                           [](QRgb pixel) { return static_cast<quint8>(qRed(pixel)); });
        }
        rows.fill(y, hasPixels ? inside.width() : 0, 0);
    }
    return alpha;
}

QImage toPicture(const Planes &planes)
{
    if (!planes.isComplete())
        return {};
    QImage picture(planes.size(), QImage::Format_RGB32);
    if (!picture.isNull())
        fillPicture(picture, planes);
    return picture;
}

void fillPicture(QImage &picture, const Planes &planes)
{
    const PlaneKernels &kernels = planeKernels();
    const ChromaRows chroma(planes);
    const int evenWidth = planes.width / 2 * 2;
    for (int row = 0; row < planes.height; ++row) {
        const quint8 *y = rowOf(planes.y, planes.width, row);
        kernels.picture(y, chroma.u(row), chroma.v(row), pixelsOf(picture, row), evenWidth);
        if (evenWidth == planes.width)
            continue;
        const int lastX = chroma.lastX();
        const common::Yuv last{y[evenWidth], chroma.u(row)[lastX], chroma.v(row)[lastX]};
        pixelsOf(picture, row)[evenWidth] = common::toPixel(common::toPacked(last));
    }
}

QImage toPicture(const AlphaPlane &alpha)
{
    if (!alpha.isComplete())
        return {};
    QImage picture(alpha.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < picture.height(); ++y)
        std::copy_n(rowOf(alpha.values, alpha.width, y), alpha.width, picture.scanLine(y));
    return picture;
}

} // namespace graphics
