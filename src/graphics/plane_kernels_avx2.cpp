#include "graphics/plane_kernels_avx2.h"

#include "graphics/plane_kernels.h"

#if defined(__x86_64__) && defined(__GNUC__)

#include <immintrin.h>

// Only the functions marked with this use AVX2, and they are called only after the processor was asked.
#define MORVEL_AVX2 [[gnu::target("avx2")]]

namespace graphics {

namespace {

using Vector = __m256i; // 32 bytes, or 16 words of 16 bits; most operations stay within a half of 128 bits

constexpr qsizetype Step = 32; // pixels, of all loops but the composer's

MORVEL_AVX2 inline Vector load(const void *from)
{
    return _mm256_loadu_si256(static_cast<const Vector *>(from));
}

MORVEL_AVX2 inline void store(void *to, Vector value)
{
    _mm256_storeu_si256(static_cast<Vector *>(to), value);
}

MORVEL_AVX2 inline Vector words(int value) { return _mm256_set1_epi16(static_cast<short>(value)); }

// Factors of blue, green and red, one per byte of each pixel.
MORVEL_AVX2 inline Vector factors(int blue, int green, int red)
{
    return _mm256_set1_epi32((blue & 0xFF) | (green & 0xFF) << 8 | (red & 0xFF) << 16);
}

// What is added to a sum before its last 8 bits are cut off: 127, and 1 more when the whole part is odd.
MORVEL_AVX2 inline Vector readyToCut(Vector sums)
{
    const Vector odd = _mm256_and_si256(_mm256_srli_epi16(sums, 8), words(1));
    return _mm256_add_epi16(_mm256_add_epi16(sums, words(127)), odd);
}

// Y less 16 of 16 pixels as words. The multiplication wants one signed side, and 129 is too large for it, so
// the pixels are taken less 128.
MORVEL_AVX2 inline Vector lumaOf16(const QRgb *pixels)
{
    const Vector factor = factors(25, 129, 66);
    const Vector flip = _mm256_set1_epi8(-128);
    const Vector low = _mm256_maddubs_epi16(factor, _mm256_xor_si256(load(pixels), flip));
    const Vector high = _mm256_maddubs_epi16(factor, _mm256_xor_si256(load(pixels + 8), flip));
    const Vector sums = _mm256_add_epi16(_mm256_hadd_epi16(low, high), words(128 * (25 + 129 + 66) + 128));
    return _mm256_srli_epi16(readyToCut(sums), 8);
}

MORVEL_AVX2 inline void lumaStep(const QRgb *pixels, quint8 *y)
{
    const Vector packed = _mm256_packus_epi16(lumaOf16(pixels), lumaOf16(pixels + 16));
    const Vector inOrder = _mm256_permutevar8x32_epi32(packed, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7));
    store(y, _mm256_add_epi8(inOrder, _mm256_set1_epi8(16)));
}

// The last step is moved back to end with the line; it writes some bytes for a second time.
MORVEL_AVX2 void luma(const QRgb *pixels, quint8 *y, qsizetype width)
{
    if (width < Step)
        return plainKernels().luma(pixels, y, width);
    for (qsizetype x = 0; x < width - Step; x += Step)
        lumaStep(pixels + x, y + x);
    lumaStep(pixels + width - Step, y + width - Step);
}

// The pixels at even x of 16: 0, 2, 8, 10 in the lower half, 4, 6, 12, 14 in the upper.
MORVEL_AVX2 inline Vector evenOf16(const QRgb *pixels)
{
    const __m256 low = _mm256_castsi256_ps(load(pixels));
    const __m256 high = _mm256_castsi256_ps(load(pixels + 8));
    return _mm256_castps_si256(_mm256_shuffle_ps(low, high, _MM_SHUFFLE(2, 0, 2, 0)));
}

MORVEL_AVX2 inline Vector chromaOf(Vector low, Vector high, Vector factor)
{
    const Vector sums =
        _mm256_hadd_epi16(_mm256_maddubs_epi16(low, factor), _mm256_maddubs_epi16(high, factor));
    return _mm256_srai_epi16(readyToCut(_mm256_add_epi16(sums, words(128))), 8);
}

MORVEL_AVX2 inline void chromaStep(const QRgb *pixels, quint8 *u, quint8 *v)
{
    const Vector low = evenOf16(pixels);
    const Vector high = evenOf16(pixels + 16);
    const Vector packed = _mm256_packs_epi16(chromaOf(low, high, factors(112, -74, -38)),
                                             chromaOf(low, high, factors(-18, -94, 112)));
    // All of U into the lower half, all of V into the upper, then each half into the order of the pixels.
    const Vector parted = _mm256_permute4x64_epi64(packed, _MM_SHUFFLE(3, 1, 2, 0));
    const Vector order =
        _mm256_broadcastsi128_si256(_mm_setr_epi8(0, 1, 8, 9, 2, 3, 10, 11, 4, 5, 12, 13, 6, 7, 14, 15));
    const Vector inOrder = _mm256_add_epi8(_mm256_shuffle_epi8(parted, order), _mm256_set1_epi8(-128));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(u), _mm256_castsi256_si128(inOrder));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(v), _mm256_extracti128_si256(inOrder, 1));
}

MORVEL_AVX2 void chroma(const QRgb *pixels, quint8 *u, quint8 *v, qsizetype width)
{
    const qsizetype even = width & ~qsizetype{1};
    if (even < Step)
        return plainKernels().chroma(pixels, u, v, width);
    for (qsizetype x = 0; x < even - Step; x += Step)
        chromaStep(pixels + x, u + x / 2, v + x / 2);
    chromaStep(pixels + even - Step, u + (even - Step) / 2, v + (even - Step) / 2);
    plainKernels().chroma(pixels + even, u + even / 2, v + even / 2, width - even);
}

// Planes to picture, in words. With z = (sum + 128) / 2 a component is z / 128 rounded down, less 1 where
// z / 128 leaves no rest and is odd, which is an exact half: (z - (z / 128 & 1)) / 128. Only red's sum can be
// odd; that is no exact half, so the half unit is dropped and nothing taken off. All is kept less 16384, so
// that words saturate, in the sum and when it is doubled, exactly where a component is to be clipped.
struct ChromaTerms
{
    Vector red;     // 409 E / 2
    Vector redEven; // 1 where red's sum is even, else 0
    Vector green;   // (-100 D - 208 E) / 2
    Vector blue;    // 516 D / 4, added twice: the whole does not fit
};

// 16 samples less 128 and times 256, 0 1 4 5 8 9 12 13 in the lower half, 2 3 6 7 10 11 14 15 in the upper.
MORVEL_AVX2 inline Vector chromaSamples(const quint8 *from)
{
    const Vector order = _mm256_setr_epi8(-1, 0, -1, 1, -1, 4, -1, 5, -1, 8, -1, 9, -1, 12, -1, 13, //
                                          -1, 2, -1, 3, -1, 6, -1, 7, -1, 10, -1, 11, -1, 14, -1, 15);
    const Vector samples =
        _mm256_broadcastsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i *>(from)));
    return _mm256_xor_si256(_mm256_shuffle_epi8(samples, order), words(-0x8000));
}

// A sample of the above times a whole factor of less than 256.
MORVEL_AVX2 inline Vector times(Vector sample, int factor)
{
    return _mm256_mulhrs_epi16(sample, words(128 * factor));
}

MORVEL_AVX2 inline ChromaTerms chromaTerms(const quint8 *u, const quint8 *v)
{
    const Vector d = chromaSamples(u);
    const Vector e = chromaSamples(v);
    // 409 / 2 does not fit a signed factor of 1/256, but 409 / 2 - 256 does.
    const Vector red = _mm256_add_epi16(e, _mm256_mulhi_epi16(e, words(409 * 128 - 65536)));
    const Vector redEven = _mm256_srli_epi16(_mm256_andnot_si256(e, words(256)), 8);
    return {red, redEven, _mm256_add_epi16(times(d, -50), times(e, -104)), times(d, 129)};
}

// Each sample for two pixels, of the samples that stand first in both halves.
MORVEL_AVX2 inline ChromaTerms firstTerms(const ChromaTerms &t)
{
    return {_mm256_unpacklo_epi16(t.red, t.red), _mm256_unpacklo_epi16(t.redEven, t.redEven),
            _mm256_unpacklo_epi16(t.green, t.green), _mm256_unpacklo_epi16(t.blue, t.blue)};
}

MORVEL_AVX2 inline ChromaTerms lastTerms(const ChromaTerms &t)
{
    return {_mm256_unpackhi_epi16(t.red, t.red), _mm256_unpackhi_epi16(t.redEven, t.redEven),
            _mm256_unpackhi_epi16(t.green, t.green), _mm256_unpackhi_epi16(t.blue, t.blue)};
}

// 149 (Y - 128), and all that z has beyond the products with Y - 128, D and E.
MORVEL_AVX2 inline Vector lumaTerm(Vector pairs)
{
    constexpr int offset = 149 * (128 - 16) + 128 - 16384;
    static_assert(offset == 4 * 108);
    return _mm256_maddubs_epi16(words(149 | 4 << 8), pairs);
}

// z to a component, less 128, in the upper byte.
MORVEL_AVX2 inline Vector component(Vector z, Vector odd)
{
    const Vector rounded = _mm256_sub_epi16(z, _mm256_and_si256(_mm256_srli_epi16(z, 7), odd));
    return _mm256_adds_epi16(rounded, rounded);
}

MORVEL_AVX2 inline void pictureOf16(Vector luma, const ChromaTerms &t, QRgb *pixels)
{
    const Vector one = words(1);
    const Vector red = component(_mm256_adds_epi16(luma, t.red), t.redEven);
    const Vector green = component(_mm256_adds_epi16(luma, t.green), one);
    const Vector blue = component(_mm256_adds_epi16(_mm256_adds_epi16(luma, t.blue), t.blue), one);
    const Vector blueGreen = _mm256_blendv_epi8(_mm256_srli_epi16(blue, 8), green, words(-0x100));
    const Vector low = _mm256_xor_si256(blueGreen, words(-0x7F80));
    const Vector high = _mm256_xor_si256(_mm256_srli_epi16(red, 8), words(-0x80));
    store(pixels, _mm256_unpacklo_epi16(low, high));
    store(pixels + 8, _mm256_unpackhi_epi16(low, high));
}

MORVEL_AVX2 inline void pictureStep(const quint8 *y, const quint8 *u, const quint8 *v, QRgb *pixels)
{
    const Vector order = _mm256_setr_epi32(0, 2, 4, 6, 1, 3, 5, 7);
    const Vector luma = _mm256_xor_si256(_mm256_permutevar8x32_epi32(load(y), order), _mm256_set1_epi8(-128));
    const Vector beside = _mm256_set1_epi8(108);
    const ChromaTerms terms = chromaTerms(u, v);
    pictureOf16(lumaTerm(_mm256_unpacklo_epi8(luma, beside)), firstTerms(terms), pixels);
    pictureOf16(lumaTerm(_mm256_unpackhi_epi8(luma, beside)), lastTerms(terms), pixels + 16);
}

MORVEL_AVX2 void picture(const quint8 *y, const quint8 *u, const quint8 *v, QRgb *pixels, qsizetype width)
{
    if (width < Step)
        return plainKernels().picture(y, u, v, pixels, width);
    for (qsizetype x = 0; x < width - Step; x += Step)
        pictureStep(y + x, u + x / 2, v + x / 2, pixels + x);
    const qsizetype x = width - Step;
    pictureStep(y + x, u + x / 2, v + x / 2, pixels + x);
}

// difference * weight / 65535, rounded. With the product in two words this is the upper one, and 1 more when
// both together reach half of 2^16; an exact half cannot occur.
MORVEL_AVX2 inline Vector shareOf(Vector difference, Vector weight)
{
    const Vector upper = _mm256_mulhi_epu16(difference, weight);
    const Vector lower = _mm256_mullo_epi16(difference, weight);
    return _mm256_add_epi16(upper, _mm256_srli_epi16(_mm256_adds_epu16(upper, lower), 15));
}

// 8 pixels, with the weights of the first 4 twice in the lower half and of the last 4 twice in the upper.
MORVEL_AVX2 inline Vector composed(Vector surface, Vector source, Vector weights)
{
    const Vector firstTwo =
        _mm256_broadcastsi128_si256(_mm_setr_epi8(0, 1, 0, 1, 0, 1, 0, 1, 2, 3, 2, 3, 2, 3, 2, 3));
    const Vector lastTwo =
        _mm256_broadcastsi128_si256(_mm_setr_epi8(4, 5, 4, 5, 4, 5, 4, 5, 6, 7, 6, 7, 6, 7, 6, 7));
    const Vector zero = _mm256_setzero_si256();
    const Vector above = _mm256_subs_epu8(source, surface);
    const Vector difference = _mm256_or_si256(above, _mm256_subs_epu8(surface, source));
    const Vector first = _mm256_shuffle_epi8(weights, firstTwo);
    const Vector last = _mm256_shuffle_epi8(weights, lastTwo);
    const Vector share = _mm256_packus_epi16(shareOf(_mm256_unpacklo_epi8(difference, zero), first),
                                             shareOf(_mm256_unpackhi_epi8(difference, zero), last));
    // Taken off where the source is darker: -x is ~x + 1.
    const Vector negative = _mm256_cmpeq_epi8(above, zero);
    const Vector change = _mm256_sub_epi8(_mm256_xor_si256(share, negative), negative);
    const Vector leftAlone =
        _mm256_packs_epi16(_mm256_cmpeq_epi16(first, zero), _mm256_cmpeq_epi16(last, zero));
    const Vector opaque = _mm256_andnot_si256(leftAlone, _mm256_set1_epi32(-0x1000000));
    return _mm256_or_si256(_mm256_add_epi8(surface, change), opaque);
}

MORVEL_AVX2 inline Vector weightsOf16(const quint8 *alpha, quint8 level)
{
    const Vector alphas = _mm256_cvtepu8_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i *>(alpha)));
    const Vector counts = _mm256_cmpgt_epi16(alphas, words(AlphaCutOff - 1));
    return _mm256_and_si256(_mm256_mullo_epi16(alphas, words(level)), counts);
}

MORVEL_AVX2 void compose(QRgb *surface, const QRgb *source, const quint8 *alpha, quint8 level,
                         qsizetype width)
{
    constexpr qsizetype composeStep = 16;
    qsizetype x = 0;
    for (; x <= width - composeStep; x += composeStep) {
        const Vector weights = weightsOf16(alpha + x, level);
        const Vector first = _mm256_permute4x64_epi64(weights, _MM_SHUFFLE(1, 1, 0, 0));
        const Vector last = _mm256_permute4x64_epi64(weights, _MM_SHUFFLE(3, 3, 2, 2));
        store(surface + x, composed(load(surface + x), load(source + x), first));
        store(surface + x + 8, composed(load(surface + x + 8), load(source + x + 8), last));
    }
    plainKernels().compose(surface + x, source + x, alpha + x, level, width - x);
}

constexpr PlaneKernels Avx2 = {"AVX2", &luma, &chroma, &picture, &compose};

} // namespace

const PlaneKernels *avx2Kernels() { return __builtin_cpu_supports("avx2") ? &Avx2 : nullptr; }

} // namespace graphics

#else

namespace graphics {

const PlaneKernels *avx2Kernels() { return nullptr; }

} // namespace graphics

#endif
