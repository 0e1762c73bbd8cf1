// Comparison, transformation and pattern matching against the raw ICU calls they wrap, on mixed
// Latin, accented Latin and Japanese text in NFC. Names are operation/units/implementation.

#include <fl/i18n/lcctype/character_handling_mode_context.hpp>
#include <fl/i18n/lcctype/pattern_match.hpp>
#include <fl/i18n/lcctype/string_compare.hpp>
#include <fl/i18n/lcctype/string_transform.hpp>
#include <fl/i18n/ustring.hpp>

#include <benchmark/benchmark.h>
#include <unicode/unorm2.h>
#include <unicode/uregex.h>
#include <unicode/ustring.h>

#include <vector>

namespace {

using fl::i18n::ustring;
namespace lc = fl::i18n::lcctype;

ustring mixed_text(std::size_t units) {
    ustring const piece =
        u"Caf\u00E9 na\u00EFve r\u00E9sum\u00E9 \u65E5\u672C\u8A9E\u306E"
        u"\u6587\u7AE0 Stra\u00DFe ";
    ustring out;
    while (out.size() < units) {
        out += piece;
    }
    out.resize(units);
    return out;
}

// Two equal copies, so that every comparison reads both texts to the end.
struct pair_of_texts {
    explicit pair_of_texts(std::size_t units) : a(mixed_text(units)), b(a) {}
    ustring a, b;
};

template <class Tag>
void compare_library(benchmark::State& state) {
    pair_of_texts const t(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            lc::compare(t.a.data(), t.a.size(), t.b.data(), t.b.size(), Tag()));
    }
}

template <class IcuCompare>
void compare_icu(benchmark::State& state, IcuCompare icu_compare) {
    pair_of_texts const t(static_cast<std::size_t>(state.range(0)));
    auto const a_length = static_cast<int32_t>(t.a.size());
    auto const b_length = static_cast<int32_t>(t.b.size());
    for (auto _ : state) {
        UErrorCode error = U_ZERO_ERROR;
        benchmark::DoNotOptimize(icu_compare(t.a.data(), a_length, t.b.data(), b_length, &error));
    }
}

int32_t icu_case_sensitive(UChar const* a, int32_t al, UChar const* b, int32_t bl, UErrorCode*) {
    return u_strCompare(a, al, b, bl, false);
}
int32_t icu_case_insensitive(UChar const* a, int32_t al, UChar const* b, int32_t bl,
                             UErrorCode* e) {
    return u_strCaseCompare(a, al, b, bl, U_FOLD_CASE_DEFAULT, e);
}
int32_t icu_normalized(UChar const* a, int32_t al, UChar const* b, int32_t bl, UErrorCode* e) {
    return unorm_compare(a, al, b, bl, 0, e);
}
int32_t icu_normalized_insensitive(UChar const* a, int32_t al, UChar const* b, int32_t bl,
                                   UErrorCode* e) {
    return unorm_compare(a, al, b, bl, U_COMPARE_IGNORE_CASE, e);
}

// NFKD of both sides into buffers kept from call to call, then the comparison.
template <class IcuCompare>
void compatibility_icu(benchmark::State& state, IcuCompare icu_compare) {
    pair_of_texts const t(static_cast<std::size_t>(state.range(0)));
    UErrorCode error = U_ZERO_ERROR;
    UNormalizer2 const* nfkd = unorm2_getNFKDInstance(&error);
    std::vector<UChar> a_form(t.a.size() * 4), b_form(t.b.size() * 4);
    auto const capacity = static_cast<int32_t>(a_form.size());
    for (auto _ : state) {
        error = U_ZERO_ERROR;
        int32_t const al = unorm2_normalize(nfkd, t.a.data(), static_cast<int32_t>(t.a.size()),
                                            a_form.data(), capacity, &error);
        int32_t const bl = unorm2_normalize(nfkd, t.b.data(), static_cast<int32_t>(t.b.size()),
                                            b_form.data(), capacity, &error);
        benchmark::DoNotOptimize(icu_compare(a_form.data(), al, b_form.data(), bl, &error));
    }
}

template <class Tag>
void transform_library(benchmark::State& state) {
    ustring const source = mixed_text(static_cast<std::size_t>(state.range(0)));
    std::vector<char16_t> destination(source.size() * 3);
    for (auto _ : state) {
        benchmark::DoNotOptimize(lc::transform(destination.data(), destination.size(),
                                               source.data(), source.size(), Tag()));
    }
}

void upper_icu(benchmark::State& state) {
    ustring const source = mixed_text(static_cast<std::size_t>(state.range(0)));
    std::vector<UChar> destination(source.size() * 3);
    for (auto _ : state) {
        UErrorCode error = U_ZERO_ERROR;
        benchmark::DoNotOptimize(
            u_strToUpper(destination.data(), static_cast<int32_t>(destination.size()),
                         source.data(), static_cast<int32_t>(source.size()), "", &error));
    }
}

void nfc_icu(benchmark::State& state) {
    ustring const source = mixed_text(static_cast<std::size_t>(state.range(0)));
    std::vector<UChar> destination(source.size() * 3);
    UErrorCode error = U_ZERO_ERROR;
    UNormalizer2 const* nfc = unorm2_getNFCInstance(&error);
    for (auto _ : state) {
        error = U_ZERO_ERROR;
        benchmark::DoNotOptimize(
            unorm2_normalize(nfc, source.data(), static_cast<int32_t>(source.size()),
                             destination.data(), static_cast<int32_t>(destination.size()), &error));
    }
}

// A text that the pattern matches only at its end.
ustring pattern_text() {
    return mixed_text(4096 - 3) + u"abc";
}

void pattern_library(benchmark::State& state, unsigned int mode) {
    ustring const text = pattern_text();
    fl::i18n::pattern_match const pattern(u".*ab.*c", mode);
    for (auto _ : state) {
        benchmark::DoNotOptimize(pattern.match(text));
    }
}

void pattern_icu(benchmark::State& state) {
    ustring const text = pattern_text();
    UErrorCode error = U_ZERO_ERROR;
    URegularExpression* expression = uregex_open(u".*ab.*c", -1, 0, nullptr, &error);
    for (auto _ : state) {
        error = U_ZERO_ERROR;
        uregex_setText(expression, text.data(), static_cast<int32_t>(text.size()), &error);
        benchmark::DoNotOptimize(uregex_matches(expression, -1, &error));
    }
    uregex_close(expression);
}

using mode = fl::i18n::character_handling_mode_context;

}  // namespace

#define TEXT_SIZES Arg(32)->Arg(4096)

BENCHMARK_TEMPLATE(compare_library, fl::i18n::case_sensitive)
    ->Name("compare_case_sensitive/library")
    ->TEXT_SIZES;
BENCHMARK_CAPTURE(compare_icu, icu, icu_case_sensitive)
    ->Name("compare_case_sensitive/icu")
    ->TEXT_SIZES;
BENCHMARK_TEMPLATE(compare_library, fl::i18n::case_insensitive)
    ->Name("compare_case_insensitive/library")
    ->TEXT_SIZES;
BENCHMARK_CAPTURE(compare_icu, icu, icu_case_insensitive)
    ->Name("compare_case_insensitive/icu")
    ->TEXT_SIZES;
BENCHMARK_TEMPLATE(compare_library, fl::i18n::normalized_case_sensitive)
    ->Name("compare_normalized_case_sensitive/library")
    ->TEXT_SIZES;
BENCHMARK_CAPTURE(compare_icu, icu, icu_normalized)
    ->Name("compare_normalized_case_sensitive/icu")
    ->TEXT_SIZES;
BENCHMARK_TEMPLATE(compare_library, fl::i18n::normalized_case_insensitive)
    ->Name("compare_normalized_case_insensitive/library")
    ->TEXT_SIZES;
BENCHMARK_CAPTURE(compare_icu, icu, icu_normalized_insensitive)
    ->Name("compare_normalized_case_insensitive/icu")
    ->TEXT_SIZES;
BENCHMARK_TEMPLATE(compare_library, fl::i18n::normalized_compatibility_case_sensitive)
    ->Name("compare_compatibility_case_sensitive/library")
    ->TEXT_SIZES;
BENCHMARK_CAPTURE(compatibility_icu, icu, icu_case_sensitive)
    ->Name("compare_compatibility_case_sensitive/icu")
    ->TEXT_SIZES;
BENCHMARK_TEMPLATE(compare_library, fl::i18n::normalized_compatibility_case_insensitive)
    ->Name("compare_compatibility_case_insensitive/library")
    ->TEXT_SIZES;
BENCHMARK_CAPTURE(compatibility_icu, icu, icu_normalized_insensitive)
    ->Name("compare_compatibility_case_insensitive/icu")
    ->TEXT_SIZES;
BENCHMARK_TEMPLATE(transform_library, fl::i18n::to_upper)->Name("to_upper/library")->TEXT_SIZES;
BENCHMARK(upper_icu)->Name("to_upper/icu")->TEXT_SIZES;
BENCHMARK_TEMPLATE(transform_library, fl::i18n::to_nfc)->Name("to_nfc/library")->TEXT_SIZES;
BENCHMARK(nfc_icu)->Name("to_nfc/icu")->TEXT_SIZES;
BENCHMARK_CAPTURE(pattern_library, nfc, mode::normalized_compose_mode)
    ->Name("pattern_match_nfc/library")
    ->Arg(4096);
BENCHMARK_CAPTURE(pattern_library, plain, mode::default_mode)
    ->Name("pattern_match_plain/library")
    ->Arg(4096);
BENCHMARK(pattern_icu)->Name("pattern_match/icu")->Arg(4096);
