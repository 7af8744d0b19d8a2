#include "common/bytes.h"
#include "fuzz/targets.h"
#include "graphics/picture_loader.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using graphics::LoadedPicture;
using graphics::PictureFault;

struct BmpForm
{
    const char *name;
    quint16 bitsPerPixel;
    quint32 compression;
    QByteArray behindHeader; // masks or palette
    QByteArray data;
    qint32 width = 2;
    qint32 height = 2;
};

QByteArray bmp(const BmpForm &form)
{
    common::ByteWriter file;
    const auto start = static_cast<quint32>(54 + form.behindHeader.size());
    file.put(QByteArrayView("BM"));
    file.put(static_cast<quint32>(start + form.data.size()));
    file.put(quint32{0});
    file.put(start);
    file.put(quint32{40});
    file.put(form.width);
    file.put(form.height);
    file.put(quint16{1});
    file.put(form.bitsPerPixel);
    file.put(form.compression);
    for (int field = 0; field < 5; ++field)
        file.put(quint32{0});
    file.put(QByteArrayView(form.behindHeader));
    file.put(QByteArrayView(form.data));
    return file.bytes();
}

QByteArray bytes(std::initializer_list<int> values)
{
    QByteArray result;
    for (const int value : values)
        result.append(static_cast<char>(value));
    return result;
}

// Black, blue, red and white, and unused up to the size of the palette.
QByteArray palette(int colours)
{
    return bytes({0, 0, 0, 0, 255, 0, 0, 0, 0, 0, 255, 0, 255, 255, 255, 0}) +
           QByteArray(qsizetype{4} * (colours - 4), 0);
}

// In each: red and white above, black and blue below.
const BmpForm Forms[] = {
    {"24 bits", 24, 0, {}, bytes({0, 0, 0, 255, 0, 0, 0, 0, /**/ 0, 0, 255, 255, 255, 255, 0, 0})},
    {"top first", 24, 0, {}, bytes({0, 0, 255, 255, 255, 255, 0, 0, /**/ 0, 0, 0, 255, 0, 0, 0, 0}), 2, -2},
    {"32 bits", 32, 0, {}, bytes({0, 0, 0, 0, 255, 0, 0, 0, /**/ 0, 0, 255, 0, 255, 255, 255, 0})},
    {"8 bits", 8, 0, palette(256), bytes({0, 1, 0, 0, /**/ 2, 3, 0, 0})},
    {"4 bits", 4, 0, palette(16), bytes({0x01, 0, 0, 0, /**/ 0x23, 0, 0, 0})},
    {"16 bits, 5-6-5", 16, 3, bytes({0, 0xF8, 0, 0, 0xE0, 7, 0, 0, 0x1F, 0, 0, 0}),
     bytes({0, 0, 0x1F, 0, /**/ 0, 0xF8, 0xFF, 0xFF})},
    {"run lengths", 8, 1, palette(256), bytes({1, 0, 1, 1, 0, 0, /**/ 1, 2, 1, 3, 0, 1})},
    {"4-bit run lengths", 4, 2, palette(16), bytes({2, 0x01, 0, 0, /**/ 2, 0x23, 0, 1})},
};

TEST(PictureLoader, readsEveryFormOfBmp)
{
    for (const BmpForm &form : Forms) {
        const LoadedPicture loaded = graphics::readPicture(bmp(form));
        ASSERT_TRUE(loaded) << form.name;
        ASSERT_EQ(loaded.picture.size(), QSize(2, 2)) << form.name;
        // The decoder leaves the lower bits of short components at 0.
        const QRgb kept = form.bitsPerPixel == 16 ? 0xFFF8F8F8 : 0xFFFFFFFF;
        const auto pixel = [&](int x, int y) { return loaded.picture.pixel(x, y) & kept; };
        EXPECT_EQ(pixel(0, 0), qRgb(255, 0, 0) & kept) << form.name;
        EXPECT_EQ(pixel(1, 0), qRgb(255, 255, 255) & kept) << form.name;
        EXPECT_EQ(pixel(0, 1), qRgb(0, 0, 0)) << form.name;
        EXPECT_EQ(pixel(1, 1), qRgb(0, 0, 255) & kept) << form.name;
    }
}

TEST(PictureLoader, refusesABmpThatIsCutAnywhere)
{
    for (const BmpForm &form : Forms) {
        const QByteArray whole = bmp(form);
        for (qsizetype length = 0; length < whole.size(); ++length)
            EXPECT_FALSE(graphics::readPicture(whole.first(length))) << form.name << ' ' << length;
        EXPECT_EQ(graphics::readPicture(whole.chopped(1)).fault, PictureFault::Cut) << form.name;
    }
}

QByteArray encoded(const char *format)
{
    QImage picture(40, 30, QImage::Format_RGB32);
    for (uint i = 0; i < 1200; ++i)
        picture.setPixel(int(i % 40), int(i / 40), i * 2654435761u);
    QBuffer buffer;
    picture.save(&buffer, format);
    return buffer.data();
}

TEST(PictureLoader, tellsWhyAFileIsRefused)
{
    const QByteArray png = encoded("png");
    const QByteArray jpeg = encoded("jpg");
    QByteArray hugePng = png;
    // Width, height, 8 bits of RGB and the sum of that.
    hugePng.replace(16, 17,
                    bytes({0, 0, 0xFF, 0xFF, 0, 0, 0xFF, 0xFF, 8, 2, 0, 0, 0, 0x39, 0x67, 0x4E, 0x07}));
    struct Case
    {
        const char *what;
        QByteArray content;
        PictureFault fault;
    };
    const auto header = [](quint16 bits, quint32 compression, qint32 width, qint32 height) {
        return bmp({"", bits, compression, {}, QByteArray(64, 0), width, height});
    };
    const Case cases[] = {
        {"empty", {}, PictureFault::Empty},
        {"text", "no picture at all", PictureFault::NotAPicture},
        {"another format", "GIF89a" + QByteArray(100, 1), PictureFault::NotAPicture},
        {"65,535 x 65,535", header(24, 0, 65535, 65535), PictureFault::TooLarge},
        {"the largest numbers", header(32, 0, 0x7FFFFFFF, -0x7FFFFFFF - 1), PictureFault::TooLarge},
        {"long and flat", header(1, 0, 4097, 1), PictureFault::TooLarge},
        {"no width", header(24, 0, 0, 2), PictureFault::NotAPicture},
        {"negative width", header(24, 0, -2, 2), PictureFault::NotAPicture},
        {"no height", header(24, 0, 2, 0), PictureFault::NotAPicture},
        {"unknown depth", header(23, 0, 2, 2), PictureFault::NotAPicture},
        {"unknown coding", header(24, 9, 2, 2), PictureFault::NotAPicture},
        {"png", png, PictureFault::None},
        {"half a png", png.first(png.size() / 2), PictureFault::Cut},
        {"a png of 65,535 x 65,535", hugePng, PictureFault::TooLarge},
        {"jpeg", jpeg, PictureFault::None},
        {"half a jpeg", jpeg.first(jpeg.size() / 2), PictureFault::Cut},
    };
    for (const Case &c : cases) {
        const LoadedPicture loaded = graphics::readPicture(c.content);
        EXPECT_EQ(loaded.fault, c.fault) << c.what;
        EXPECT_EQ(loaded.picture.isNull(), c.fault != PictureFault::None) << c.what;
    }
    EXPECT_EQ(graphics::readPicture(png, 39).fault, PictureFault::TooLarge);
    EXPECT_EQ(graphics::readPicture(jpeg, 39).fault, PictureFault::TooLarge);
}

TEST(PictureLoader, readsFilesAndNothingElse)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("picture.jpg"))); // the name does not count
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bmp(Forms[0]));
    file.close();
    EXPECT_TRUE(graphics::loadPicture(file.fileName()));
    EXPECT_EQ(graphics::loadPicture(file.fileName() + u'x').fault, PictureFault::Unreadable);
    EXPECT_EQ(graphics::loadPicture(folder.path()).fault, PictureFault::Unreadable);
    // Larger than any picture within the limits: told without reading it (the file has no blocks).
    ASSERT_TRUE(file.resize(qint64{1} << 40));
    EXPECT_EQ(graphics::loadPicture(file.fileName()).fault, PictureFault::TooLarge);
}

TEST(Sampled, picksPixelsAtScaledPlaces)
{
    QImage row(5, 1, QImage::Format_RGB32);
    for (int x = 0; x < 5; ++x)
        row.setPixel(x, 0, qRgb(x, 2 * x, 3 * x));
    const std::vector<int> picked[] = {{0}, {0, 2}, {0, 1, 3}, {0, 1, 2, 3, 4}, {0, 0, 1, 2, 2, 3, 4}};
    for (const std::vector<int> &wanted : picked) {
        const int size = static_cast<int>(wanted.size());
        const QImage across = graphics::sampled(row, {size, 2});
        const QImage down = graphics::sampled(row.transformed(QTransform().rotate(90)), {1, size});
        ASSERT_EQ(across.size(), QSize(size, 2));
        for (int i = 0; i < size; ++i) {
            const int x = wanted[static_cast<std::size_t>(i)];
            EXPECT_EQ(across.pixel(i, 1), qRgb(x, 2 * x, 3 * x)) << size << ' ' << i;
            EXPECT_EQ(down.pixel(0, i), qRgb(x, 2 * x, 3 * x)) << size << ' ' << i;
        }
    }
    EXPECT_TRUE(graphics::sampled(row, {0, 3}).isNull());
    EXPECT_TRUE(graphics::sampled(QImage(), {3, 3}).isNull());
}

// What fuzzing found worth keeping.
TEST(PictureLoader, keepsItsPromisesForTheCorpus)
{
    const QDir corpus(QStringLiteral(FUZZ_CORPUS "/fuzz_picture"));
    const QStringList names = corpus.entryList(QDir::Files);
    EXPECT_FALSE(names.isEmpty());
    for (const QString &name : names) {
        QFile file(corpus.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_TRUE(fuzz::picture(file.readAll())) << qPrintable(name);
    }
}

} // namespace
