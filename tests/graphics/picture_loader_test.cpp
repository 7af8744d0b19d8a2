#include "graphics/picture_loader.h"

#include <QBuffer>
#include <QDataStream>
#include <QDir>
#include <QTemporaryFile>

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace {

using graphics::PictureFault;
using graphics::readPicture;

struct BmpForm
{
    const char *name;
    quint16 bitsPerPixel;
    quint32 compression;
    QByteArray afterHeader; // masks or palette
    QByteArray data;
    qint32 width = 2;
    qint32 height = 2;
};

QByteArray bmp(const BmpForm &form)
{
    QByteArray file("BM\0\0\0\0\0\0\0\0", 10);
    QDataStream header(&file, QIODevice::Append);
    header.setByteOrder(QDataStream::LittleEndian);
    header << static_cast<quint32>(54 + form.afterHeader.size()) << quint32{40} << form.width << form.height
           << quint16{1} << form.bitsPerPixel << form.compression;
    return file + QByteArray(20, '\0') + form.afterHeader + form.data;
}

QByteArray hex(const char *digits) { return QByteArray::fromHex(digits); }

// Black, blue, red and white, and unused up to the size of the palette.
QByteArray palette(int colours)
{
    return hex("00000000 ff000000 0000ff00 ffffff00") + QByteArray(qsizetype{4} * (colours - 4), '\0');
}

// In each: red and white above, black and blue below.
const BmpForm Forms[] = {
    {"24 bits", 24, 0, {}, hex("000000 ff0000 0000  0000ff ffffff 0000")},
    {"top first", 24, 0, {}, hex("0000ff ffffff 0000  000000 ff0000 0000"), 2, -2},
    {"32 bits", 32, 0, {}, hex("00000000 ff000000  0000ff00 ffffff00")},
    {"8 bits", 8, 0, palette(256), hex("00010000 02030000")},
    {"4 bits", 4, 0, palette(16), hex("01000000 23000000")},
    {"16 bits", 16, 0, {}, hex("00001f00 007cff7f")},
    {"16 bits, 5-6-5", 16, 3, hex("00f80000 e0070000 1f000000"), hex("00001f00 00f8ffff")},
    {"run lengths", 8, 1, palette(256), hex("0100 0101 0000  0102 0103 0001")},
    {"4-bit run lengths", 4, 2, palette(16), hex("0201 0000  0223 0001")},
};

TEST(PictureLoader, readsEveryFormOfBmpAndRefusesOneThatIsCutAnywhere)
{
    for (const BmpForm &form : Forms) {
        const QByteArray whole = bmp(form);
        const QImage picture = readPicture(whole).picture;
        ASSERT_EQ(picture.size(), QSize(2, 2)) << form.name;
        EXPECT_EQ(
            QList<QRgb>({picture.pixel(0, 0), picture.pixel(1, 0), picture.pixel(0, 1), picture.pixel(1, 1)}),
            QList<QRgb>({0xFFFF0000, 0xFFFFFFFF, 0xFF000000, 0xFF0000FF}))
            << form.name;
        for (qsizetype length = 0; length < whole.size(); ++length)
            EXPECT_FALSE(readPicture(whole.first(length))) << form.name << ' ' << length;
        EXPECT_EQ(readPicture(whole.chopped(1)).fault, PictureFault::Cut) << form.name;
    }
    const QByteArray half = bmp({"", 16, 3, Forms[6].afterHeader, hex("10840000"), 1, 1});
    EXPECT_EQ(readPicture(half).picture.pixel(0, 0), qRgb(132, 130, 132)); // 16, 32 and 16 of 31, 63 and 31
}

QByteArray encoded(const char *format)
{
    QImage picture(40, 30, QImage::Format_RGB888);
    std::generate_n(picture.bits(), picture.sizeInBytes(), std::minstd_rand());
    QBuffer buffer;
    picture.save(&buffer, format);
    return buffer.data();
}

TEST(PictureLoader, tellsWhyAFileIsRefused)
{
    const QByteArray png = encoded("png"), jpeg = encoded("jpg");
    QByteArray hugePng = png;
    hugePng.replace(16, 17, hex("0000ffff 0000ffff 0802000000 39674e07")); // sizes, form and their sum
    const auto header = [](quint16 bits, quint32 compression, qint32 width, qint32 height) {
        return bmp({"", bits, compression, {}, QByteArray(64, 0), width, height});
    };
    const std::tuple<const char *, QByteArray, PictureFault> cases[] = {
        {"empty", {}, PictureFault::Empty},
        {"another format", "GIF89a" + QByteArray(100, 1), PictureFault::NotAPicture},
        {"the largest numbers", header(32, 0, 0x7FFFFFFF, -0x7FFFFFFF - 1), PictureFault::TooLarge},
        {"png", png, PictureFault::None},
        {"half a png", png.first(png.size() / 2), PictureFault::Cut},
        {"a png of 65,535 x 65,535", hugePng, PictureFault::TooLarge},
        {"jpeg", jpeg, PictureFault::None},
        {"half a jpeg", jpeg.first(jpeg.size() / 2), PictureFault::Cut},
    };
    for (const auto &[what, content, fault] : cases)
        EXPECT_EQ(readPicture(content).fault, fault) << what;
    EXPECT_EQ(readPicture(jpeg, 39).fault, PictureFault::TooLarge);
}

TEST(PictureLoader, readsFilesAndNothingElse)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open() && file.write(bmp(Forms[0])) > 0 && file.flush());
    EXPECT_TRUE(graphics::loadPicture(file.fileName()));
    EXPECT_EQ(graphics::loadPicture(QDir::tempPath()).fault, PictureFault::Unreadable);
    EXPECT_EQ(graphics::loadPicture("/dev/zero").fault, PictureFault::Unreadable);
    // Larger than any picture within the limits: told without reading it (the file has no blocks).
    ASSERT_TRUE(file.resize(qint64{1} << 40));
    EXPECT_EQ(graphics::loadPicture(file.fileName()).fault, PictureFault::TooLarge);
}

// It would give texts that are drawn upon the picture another size.
TEST(PictureLoader, aFilesResolutionMeansNothing)
{
    QImage picture(2, 2, QImage::Format_RGB32);
    const int usual = picture.dotsPerMeterX();
    picture.setDotsPerMeterX(1);
    picture.setDotsPerMeterY(1);
    const QImage read = graphics::readPicture(graphics::bmpOf(picture)).picture;
    EXPECT_EQ(QPoint(read.dotsPerMeterX(), read.dotsPerMeterY()), QPoint(usual, usual));
}

} // namespace
