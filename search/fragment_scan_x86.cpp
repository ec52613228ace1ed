// SPDX-License-Identifier: MIT
#include <bit>
#include <cstddef>
#include <cstdint>
#include <immintrin.h>

#include "search/fragment_scan.h"

namespace brelex {

namespace {

// Compilers inline a function only into one that may use the same instructions. So each function
// with vectors names the instructions it needs, and none serves both widths.

// Memory delivers more if it is asked early.
constexpr std::size_t kPrefetchBytes = 4096;

[[gnu::target("sse2")]] inline void Prefetch(const char* bytes) {
    _mm_prefetch(bytes + kPrefetchBytes, _MM_HINT_T0);
}

// Whether both tests are for one letter or one other byte, which takes fewer instructions.
bool IsForLetters(const PairTest& test) {
    return test.first.test.span == 0 && test.second.test.span == 0;
}

constexpr std::size_t kBlock = 64;  // positions tested at once
constexpr std::size_t kNone = std::string_view::npos;

// The first of the marked positions where the fragment stands. Bit 0 marks `start`.
inline std::size_t FirstStanding(std::string_view text, std::size_t start, std::uint64_t marks,
                                 const Fragment& fragment) {
    for (; marks != 0; marks &= marks - 1) {
        const std::size_t position = start + static_cast<std::size_t>(std::countr_zero(marks));
        if (SegmentStandsAt(fragment.sets, text, position)) {
            return position;
        }
    }
    return kNone;
}

struct Sse2Test {
    __m128i ignored;
    __m128i lowest;
    __m128i span;
};

[[gnu::target("sse2")]] inline Sse2Test Sse2TestOf(const ByteTest& test) {
    return {_mm_set1_epi8(static_cast<char>(test.ignored)),
            _mm_set1_epi8(static_cast<char>(test.lowest)),
            _mm_set1_epi8(static_cast<char>(test.span))};
}

// A byte is in a range if subtracting the span from its distance, stopping at 0, leaves 0.
template <bool kLetters>
[[gnu::target("sse2")]] inline __m128i Passing(const char* bytes, const Sse2Test& test) {
    const __m128i loaded = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    const __m128i folded = _mm_or_si128(loaded, test.ignored);
    if constexpr (kLetters) {
        return _mm_cmpeq_epi8(folded, test.lowest);
    }
    const __m128i beyond = _mm_subs_epu8(_mm_sub_epi8(folded, test.lowest), test.span);
    return _mm_cmpeq_epi8(beyond, _mm_setzero_si128());
}

[[gnu::target("sse2")]] inline std::uint64_t MarksOf(__m128i passing) {
    return static_cast<unsigned>(_mm_movemask_epi8(passing));
}

template <bool kLetters>
[[gnu::target("sse2")]] std::size_t FindWithSse2(std::string_view text, std::size_t from,
                                                 std::size_t end, const Fragment& fragment) {
    const PairTest& test = fragment.rarest;
    const Sse2Test first = Sse2TestOf(test.first.test);
    const Sse2Test second = Sse2TestOf(test.second.test);
    const char* const a = text.data() + test.first.place;
    const char* const b = text.data() + test.second.place;
    for (; end - from >= kBlock; from += kBlock) {
        Prefetch(a + from);
        const __m128i marks0 =
            _mm_and_si128(Passing<kLetters>(a + from, first), Passing<kLetters>(b + from, second));
        const __m128i marks1 = _mm_and_si128(Passing<kLetters>(a + from + 16, first),
                                             Passing<kLetters>(b + from + 16, second));
        const __m128i marks2 = _mm_and_si128(Passing<kLetters>(a + from + 32, first),
                                             Passing<kLetters>(b + from + 32, second));
        const __m128i marks3 = _mm_and_si128(Passing<kLetters>(a + from + 48, first),
                                             Passing<kLetters>(b + from + 48, second));
        const __m128i any =
            _mm_or_si128(_mm_or_si128(marks0, marks1), _mm_or_si128(marks2, marks3));
        if (MarksOf(any) != 0) {
            const std::uint64_t marks = MarksOf(marks0) | MarksOf(marks1) << 16U |
                                        MarksOf(marks2) << 32U | MarksOf(marks3) << 48U;
            const std::size_t found = FirstStanding(text, from, marks, fragment);
            if (found != kNone) {
                return found;
            }
        }
    }
    return ScanPlainly(text, from, end, fragment);
}

std::size_t ScanWithSse2(std::string_view text, std::size_t from, std::size_t end,
                         const Fragment& fragment) {
    return IsForLetters(fragment.rarest) ? FindWithSse2<true>(text, from, end, fragment)
                                         : FindWithSse2<false>(text, from, end, fragment);
}

struct Avx2Test {
    __m256i ignored;
    __m256i lowest;
    __m256i span;
};

[[gnu::target("avx2")]] inline Avx2Test Avx2TestOf(const ByteTest& test) {
    return {_mm256_set1_epi8(static_cast<char>(test.ignored)),
            _mm256_set1_epi8(static_cast<char>(test.lowest)),
            _mm256_set1_epi8(static_cast<char>(test.span))};
}

template <bool kLetters>
[[gnu::target("avx2")]] inline __m256i Passing(const char* bytes, const Avx2Test& test) {
    const __m256i loaded = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(bytes));
    const __m256i folded = _mm256_or_si256(loaded, test.ignored);
    if constexpr (kLetters) {
        return _mm256_cmpeq_epi8(folded, test.lowest);
    }
    const __m256i beyond = _mm256_subs_epu8(_mm256_sub_epi8(folded, test.lowest), test.span);
    return _mm256_cmpeq_epi8(beyond, _mm256_setzero_si256());
}

[[gnu::target("avx2")]] inline std::uint64_t MarksOf(__m256i passing) {
    return static_cast<unsigned>(_mm256_movemask_epi8(passing));
}

template <bool kLetters>
[[gnu::target("avx2")]] std::size_t FindWithAvx2(std::string_view text, std::size_t from,
                                                 std::size_t end, const Fragment& fragment) {
    const PairTest& test = fragment.rarest;
    const Avx2Test first = Avx2TestOf(test.first.test);
    const Avx2Test second = Avx2TestOf(test.second.test);
    const char* const a = text.data() + test.first.place;
    const char* const b = text.data() + test.second.place;
    for (; end - from >= kBlock; from += kBlock) {
        Prefetch(a + from);
        const __m256i marks0 = _mm256_and_si256(Passing<kLetters>(a + from, first),
                                                Passing<kLetters>(b + from, second));
        const __m256i marks1 = _mm256_and_si256(Passing<kLetters>(a + from + 32, first),
                                                Passing<kLetters>(b + from + 32, second));
        if (MarksOf(_mm256_or_si256(marks0, marks1)) != 0) {
            const std::uint64_t marks = MarksOf(marks0) | MarksOf(marks1) << 32U;
            const std::size_t found = FirstStanding(text, from, marks, fragment);
            if (found != kNone) {
                return found;
            }
        }
    }
    return ScanPlainly(text, from, end, fragment);
}

std::size_t ScanWithAvx2(std::string_view text, std::size_t from, std::size_t end,
                         const Fragment& fragment) {
    return IsForLetters(fragment.rarest) ? FindWithAvx2<true>(text, from, end, fragment)
                                         : FindWithAvx2<false>(text, from, end, fragment);
}

}  // namespace

std::vector<FragmentScan> VectorScans() {
    std::vector<FragmentScan> scans;
    if (__builtin_cpu_supports("sse2")) {
        scans.push_back(ScanWithSse2);
    }
    if (__builtin_cpu_supports("avx2")) {
        scans.push_back(ScanWithAvx2);
    }
    return scans;
}

}  // namespace brelex
