// Classification against raw ICU. scan walks UTF-16 and classifies code points much as a caller
// would by hand with U16_NEXT and u_isalpha; isalpha adds its own dispatch on top of ICU.
// Names are operation/implementation.

#include <fl/i18n/lcctype/classify.hpp>
#include <fl/i18n/lcctype/posix_class.hpp>
#include <fl/i18n/lcctype/posix_tag.hpp>
#include <fl/i18n/lcctype/scan.hpp>
#include <fl/i18n/ustring.hpp>

#include <benchmark/benchmark.h>
#include <unicode/uchar.h>
#include <unicode/utf16.h>

namespace {

using fl::i18n::ustring;

// 64 Ki units of letters from several scripts, then a space for the scans to stop at. All in the
// BMP: scan joins a surrogate pair only in its own way, so the two walks would stop at different
// places. The two padding units keep the walk's look-ahead inside the string.
ustring const& letters() {
    static ustring const text = [] {
        ustring piece = u"Stra\u00DFe\u00E9t\u00E9\u65E5\u672C\u8A9E\u3072\u3089\u304C\u306A";
        piece += u"\u0416\u0438\u0437\u043D\u044C";
        ustring out;
        while (out.size() < 65536) {
            out += piece;
        }
        return out + u" xx";
    }();
    return text;
}

void scan_library(benchmark::State& state) {
    ustring const& text = letters();
    for (auto _ : state) {
        auto const* stop =
            fl::i18n::lcctype::scan(fl::i18n::lcctype::posix_class::alpha, text.data(),
                                    text.data() + text.size() - 2, fl::i18n::is_not_posix());
        benchmark::DoNotOptimize(stop);
    }
    state.SetBytesProcessed(state.iterations() * text.size() * 2);
}

void scan_icu(benchmark::State& state) {
    ustring const& text = letters();
    auto const* units = reinterpret_cast<UChar const*>(text.data());
    auto const length = static_cast<int32_t>(text.size() - 2);
    for (auto _ : state) {
        int32_t i = 0;
        while (i < length) {
            int32_t const start = i;
            UChar32 c;
            U16_NEXT(units, i, length, c);
            if (!u_isalpha(c)) {
                i = start;
                break;
            }
        }
        benchmark::DoNotOptimize(i);
    }
    state.SetBytesProcessed(state.iterations() * text.size() * 2);
}

void isalpha_library(benchmark::State& state) {
    for (auto _ : state) {
        int count = 0;
        for (char32_t c = 0; c < 0x3000; ++c) {
            count += fl::i18n::lcctype::isalpha(c);
        }
        benchmark::DoNotOptimize(count);
    }
}

void isalpha_icu(benchmark::State& state) {
    for (auto _ : state) {
        int count = 0;
        for (UChar32 c = 0; c < 0x3000; ++c) {
            count += u_isalpha(c);
        }
        benchmark::DoNotOptimize(count);
    }
}

}  // namespace

BENCHMARK(scan_library)->Name("scan/library");
BENCHMARK(scan_icu)->Name("scan/icu");
BENCHMARK(isalpha_library)->Name("isalpha/library");
BENCHMARK(isalpha_icu)->Name("isalpha/icu");
