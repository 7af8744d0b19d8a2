#pragma once

#include "common/bytes.h"
#include "common/colour.h"

#include <QByteArray>

#include <algorithm>
#include <vector>

namespace layoutfile {

// All record bodies of a layout file, each as a struct with its fields in file order and one function, visit,
// that names every field. Writer, reader and sizes come from that function alone. Positions are video pixels.

enum class RecordType : qint16 {
    VideoSource = 1,
    Bitmap = 2,
    TextTag = 3,
    DigitalDisplay = 4,
    BarGraph = 5,
    Gauge = 6,
    Variable = 7,
    Chapter = 8,
    LapChapters = 9,
    AutoStart = 10,
    AutoStop = 11,
    VideoStandard = 12,
    BitRate = 13,
    MessageStorageRate = 14,
    Gears = 15,
    TrackMap = 16,
    FontDirectory = 17,
    ImagePlanes = 18,
    FontRasters = 19,
    Programs = 20,
    TrackMapUnderlay = 21,
    MessageOutputRate = 22,
    Thumbnail = 23,
    LongText = 24,
    ExtendedFontDirectory = 25,
    ExtendedFontRasters = 26,
    SpecialIcon = 27,
    CustomDial = 28
};

// Text in a fixed field of N bytes: cut to N - 1 bytes, one NUL, then blanks.
template <int N>
struct FixedText
{
    static constexpr int Width = N;
    QByteArray text; // in the code page
};

// Text padded with blanks to N bytes, without a NUL.
template <int N>
struct PaddedText
{
    static constexpr int Width = N;
    QByteArray text;
};

// The rest of a record whose length the frame states.
struct Bulk
{
    QByteArray bytes;
};

struct VideoSourceRecord
{
    static constexpr RecordType Type = RecordType::VideoSource;
    quint8 divisor = 0;
    qint16 top = 0, left = 0;
    quint8 topBorderWidth = 0, bottomBorderWidth = 0, leftBorderWidth = 0, rightBorderWidth = 0;
    common::Yuv borderColour;
    quint8 borderVisible = 0, borderWidth = 0, cameraNo = 0, mirror = 0;
    quint8 brightness = 0, contrast = 0, hue = 0, saturation = 0;
    qint32 variable = 0;
    float lowerLimit = 0, upperLimit = 0, defaultValue = 0;

    static void visit(auto &r, auto &&field)
    {
        field(r.divisor, r.top, r.left, r.topBorderWidth, r.bottomBorderWidth, r.leftBorderWidth,
              r.rightBorderWidth, r.borderColour, r.borderVisible, r.borderWidth, r.cameraNo, r.mirror,
              r.brightness, r.contrast, r.hue, r.saturation, r.variable, r.lowerLimit, r.upperLimit,
              r.defaultValue);
    }
};

struct BitmapRecord
{
    static constexpr RecordType Type = RecordType::Bitmap;
    qint16 width = 0, height = 0, top = 0, left = 0;
    quint8 alpha = 0;
    float lowerLimit = 0, upperLimit = 0, defaultValue = 0;
    qint32 variable = 0;
    quint8 zOrder = 0;
    qint32 alphaVariable = 0;
    float alphaVariableMin = 0, alphaVariableMax = 0, alphaDefault = 0;

    static void visit(auto &r, auto &&field)
    {
        field(r.width, r.height, r.top, r.left, r.alpha, r.lowerLimit, r.upperLimit, r.defaultValue,
              r.variable, r.zOrder, r.alphaVariable, r.alphaVariableMin, r.alphaVariableMax, r.alphaDefault);
    }
};

struct TextTagRecord
{
    static constexpr RecordType Type = RecordType::TextTag;
    qint16 left = 0, top = 0; // a negative left is the right edge
    quint8 alpha = 0;
    common::Yuv colour;
    float lowerLimit = 0, upperLimit = 0, defaultValue = 0;
    FixedText<12> text;
    quint8 textLength = 0;
    quint8 fontId = 0;
    FixedText<30> fontFile;
    qint32 variable = 0, colourVariable = 0;
    float colourVariableMin = 0, colourVariableMax = 0;

    static void visit(auto &r, auto &&field)
    {
        field(r.left, r.top, r.alpha, r.colour, r.lowerLimit, r.upperLimit, r.defaultValue, r.text,
              r.textLength, r.fontId, r.fontFile, r.variable, r.colourVariable, r.colourVariableMin,
              r.colourVariableMax);
    }
};

struct DigitalDisplayRecord
{
    static constexpr RecordType Type = RecordType::DigitalDisplay;
    qint16 x = 0, y = 0; // a negative x is the right edge
    quint8 alpha = 0;
    common::Yuv colour;
    quint8 decimalPlaces = 0, timeFormat = 0;
    float lowerLimit = 0, upperLimit = 0, defaultValue = 0;
    qint32 variable = 0, colourVariable = 0;
    float colourVariableMin = 0, colourVariableMax = 0;
    quint8 fontId = 0;
    FixedText<30> fontFile;

    static void visit(auto &r, auto &&field)
    {
        field(r.x, r.y, r.alpha, r.colour, r.decimalPlaces, r.timeFormat, r.lowerLimit, r.upperLimit,
              r.defaultValue, r.variable, r.colourVariable, r.colourVariableMin, r.colourVariableMax,
              r.fontId, r.fontFile);
    }
};

struct BarGraphRecord
{
    static constexpr RecordType Type = RecordType::BarGraph;
    qint16 startX = 0, startY = 0, endX = 0, endY = 0;
    quint8 alpha = 0, barWidth = 0;
    common::Yuv colour;
    float min = 0, max = 0, defaultValue = 0;
    qint32 variable = 0, colourVariable = 0;
    float colourVariableMin = 0, colourVariableMax = 0;

    static void visit(auto &r, auto &&field)
    {
        field(r.startX, r.startY, r.endX, r.endY, r.alpha, r.barWidth, r.colour, r.min, r.max, r.defaultValue,
              r.variable, r.colourVariable, r.colourVariableMin, r.colourVariableMax);
    }
};

struct GaugeRecord
{
    static constexpr RecordType Type = RecordType::Gauge;
    qint16 centreX = 0, centreY = 0;
    quint8 pointerLength = 0, pointerWidth = 0;
    common::Yuv colour;
    qint16 minAngle = 0, maxAngle = 0;
    float min = 0, max = 0, defaultValue = 0;
    qint32 variable = 0, colourVariable = 0;
    float colourVariableMin = 0, colourVariableMax = 0;

    static void visit(auto &r, auto &&field)
    {
        field(r.centreX, r.centreY, r.pointerLength, r.pointerWidth, r.colour, r.minAngle, r.maxAngle, r.min,
              r.max, r.defaultValue, r.variable, r.colourVariable, r.colourVariableMin, r.colourVariableMax);
    }
};

struct VariableEntry
{
    static constexpr RecordType Type = RecordType::Variable;
    qint32 variable = 0;
    quint8 used = 0;
    float smoothingTime = 0, maximumRoc = 0;
    qint32 programOffset = -1; // into the programs; -1 for none
    quint8 programLength = 0;

    static void visit(auto &r, auto &&field)
    {
        field(r.variable, r.used, r.smoothingTime, r.maximumRoc, r.programOffset, r.programLength);
    }
};

struct ChapterRecord
{
    static constexpr RecordType Type = RecordType::Chapter;
    quint8 type = 0;
    float value1 = 0;
    quint8 sign1 = 0;
    qint32 variable = 0;
    quint8 sign2 = 0;
    float value2 = 0;

    static void visit(auto &r, auto &&field)
    {
        field(r.type, r.value1, r.sign1, r.variable, r.sign2, r.value2);
    }
};

struct LapChaptersRecord
{
    static constexpr RecordType Type = RecordType::LapChapters;
    quint8 type = 0;

    static void visit(auto &r, auto &&field) { field(r.type); }
};

template <RecordType T>
struct TriggerRecord
{
    static constexpr RecordType Type = T;
    qint32 variable = 0;
    float value = 0;
    quint8 condition = 0, time = 0;

    static void visit(auto &r, auto &&field) { field(r.variable, r.value, r.condition, r.time); }
};
using AutoStartRecord = TriggerRecord<RecordType::AutoStart>;
using AutoStopRecord = TriggerRecord<RecordType::AutoStop>;

struct VideoStandardRecord
{
    static constexpr RecordType Type = RecordType::VideoStandard;
    quint8 standard = 0;

    static void visit(auto &r, auto &&field) { field(r.standard); }
};

struct BitRateRecord
{
    static constexpr RecordType Type = RecordType::BitRate;
    quint8 ratePlusOne = 0; // one above the rate that is shown: deliberate
    quint8 encodePattern = 0;

    static void visit(auto &r, auto &&field) { field(r.ratePlusOne, r.encodePattern); }
};

template <RecordType T>
struct MessageRateRecord
{
    static constexpr RecordType Type = T;
    quint8 number = 0, rate = 0;

    static void visit(auto &r, auto &&field) { field(r.number, r.rate); }
};
using MessageStorageRateRecord = MessageRateRecord<RecordType::MessageStorageRate>;
using MessageOutputRateRecord = MessageRateRecord<RecordType::MessageOutputRate>;

// All lower limits stand before the upper ones.
struct GearsRecord
{
    static constexpr RecordType Type = RecordType::Gears;
    float pulsesPerRevolution = 0;
    std::vector<float> lower, upper; // as many as the count byte says
    quint8 method = 0;
    qint32 variable = 0;

    static void visit(auto &r, auto &&field)
    {
        field(r.pulsesPerRevolution);
        field.sameLength(r.lower, r.upper);
        field(r.method, r.variable);
    }
};

struct TrackMapRecord
{
    static constexpr RecordType Type = RecordType::TrackMap;
    qint16 left = 0, top = 0, width = 0, height = 0;
    quint8 lineWidth = 0;
    common::Yuv lineColour;
    quint8 markerVisible = 0, markerWidth = 0;
    common::Yuv markerColour;
    quint8 borderWidth = 0;
    common::Yuv borderColour;
    quint8 borderVisible = 0, alpha = 0, fadingRate = 0;
    qint16 initialWidth = 0, initialHeight = 0;
    quint8 autoRescale = 0;

    static void visit(auto &r, auto &&field)
    {
        field(r.left, r.top, r.width, r.height, r.lineWidth, r.lineColour, r.markerVisible, r.markerWidth,
              r.markerColour, r.borderWidth, r.borderColour, r.borderVisible, r.alpha, r.fadingRate,
              r.initialWidth, r.initialHeight, r.autoRescale);
    }
};

template <RecordType T>
struct FontDirectoryEntry
{
    static constexpr RecordType Type = T;
    quint8 fontId = 0;
    qint32 length = 0, offset = 0; // bytes

    static void visit(auto &r, auto &&field) { field(r.fontId, r.length, r.offset); }
};
using FontDirectoryRecord = FontDirectoryEntry<RecordType::FontDirectory>;
using ExtendedFontDirectoryRecord = FontDirectoryEntry<RecordType::ExtendedFontDirectory>;

template <RecordType T>
struct BulkRecord
{
    static constexpr RecordType Type = T;
    Bulk data;

    static void visit(auto &r, auto &&field) { field(r.data); }
};
using ImagePlanesRecord = BulkRecord<RecordType::ImagePlanes>;
using FontRastersRecord = BulkRecord<RecordType::FontRasters>;
using ProgramsRecord = BulkRecord<RecordType::Programs>;
using ThumbnailRecord = BulkRecord<RecordType::Thumbnail>;
using ExtendedFontRastersRecord = BulkRecord<RecordType::ExtendedFontRasters>;

struct TrackMapUnderlayRecord
{
    static constexpr RecordType Type = RecordType::TrackMapUnderlay;
    quint8 mapType = 0, detailLevel = 0, alpha = 0;

    static void visit(auto &r, auto &&field) { field(r.mapType, r.detailLevel, r.alpha); }
};

struct LongTextRecord
{
    static constexpr RecordType Type = RecordType::LongText;
    FixedText<31> text;
    quint8 length = 0;

    static void visit(auto &r, auto &&field) { field(r.text, r.length); }
};

struct SpecialIconRecord
{
    static constexpr RecordType Type = RecordType::SpecialIcon;
    quint8 entry = 0; // from 1
    qint16 width = 0, height = 0, top = 0, left = 0;
    quint8 alpha = 0;
    QByteArray planes; // Y, U and V

    // Bytes. U and V have a quarter of the pixels each, also where a side is odd.
    qsizetype lumaSize() const { return qsizetype{width} * height; }
    qsizetype chromaSize() const { return lumaSize() / 4; }

    static void visit(auto &r, auto &&field)
    {
        field(r.entry, r.width, r.height, r.top, r.left, r.alpha);
        // No length stands before them: it follows from the sides. No planes have negative ones.
        field.run(r.planes, std::min(r.width, r.height) < 0 ? -1 : r.lumaSize() + 2 * r.chromaSize());
    }
};

struct CustomDialRecord
{
    static constexpr RecordType Type = RecordType::CustomDial;
    qint16 bitmapObject = 0, gaugeObject = 0; // the records made from this dial
    qint16 left = 0, top = 0, width = 0, height = 0;
    qint32 variable = 0;
    qint16 pointerLength = 0, pointerWidth = 0;
    common::Yuv pointerColour;
    qint16 minAngle = 0, maxAngle = 0;
    float min = 0, max = 0, defaultValue = 0;
    quint8 alpha = 0, ticStyle = 0;
    float ticDelta = 0, ticInner = 0, ticOuter = 0, ticWidth = 0;
    quint8 ticLabels = 0;
    common::Yuv ticColour;
    PaddedText<30> fontName;
    quint8 fontBold = 0, fontItalic = 0;
    qint16 fontSize = 0;
    quint8 fontStrikethrough = 0, fontUnderline = 0, captions = 0;
    float captionLeft = 0, captionTop = 0;
    qint32 captionColour = 0; // packed 0x00BBGGRR, like the two below
    PaddedText<30> caption;
    quint8 annulars = 0;
    float annularStart = 0, annularStop = 0, annularInner = 0, annularOuter = 0;
    qint32 annularColour = 0, backColour = 0;
    quint8 transparent = 0;

    static void visit(auto &r, auto &&field)
    {
        field(r.bitmapObject, r.gaugeObject, r.left, r.top, r.width, r.height, r.variable, r.pointerLength,
              r.pointerWidth, r.pointerColour, r.minAngle, r.maxAngle, r.min, r.max, r.defaultValue, r.alpha,
              r.ticStyle, r.ticDelta, r.ticInner, r.ticOuter, r.ticWidth, r.ticLabels, r.ticColour,
              r.fontName, r.fontBold, r.fontItalic, r.fontSize, r.fontStrikethrough, r.fontUnderline,
              r.captions, r.captionLeft, r.captionTop, r.captionColour, r.caption, r.annulars, r.annularStart,
              r.annularStop, r.annularInner, r.annularOuter, r.annularColour, r.backColour, r.transparent);
    }
};

} // namespace layoutfile
