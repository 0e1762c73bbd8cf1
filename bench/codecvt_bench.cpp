// Character conversion against its baselines: raw ICU with one reused converter, ICU's UTF-8
// string functions, and glibc iconv with one reused descriptor. Names are
// direction/encoding/bytes/implementation; codecvt_ratios.py turns a JSON run into ratios.

#include <fl/i18n/codecvt/codecvt_string_to_ustring.hpp>
#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>
#include <fl/i18n/codecvt/string_conversion.hpp>

#include "i18n/lcmgmt/manager_context.hpp"

#include <benchmark/benchmark.h>
#include <iconv.h>
#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using fl::i18n::ustring;

// The default encoding is fixed by the first conversion in the process, and start-up is what
// would set it. Without start-up, the global locale is swapped for a copy on the wanted
// encoding before anything converts: UTF-8, or OVI18N_BENCH_DEFAULT_ENCODING when that is set.
std::string make_default_encoding() {
    char const* const wanted = std::getenv("OVI18N_BENCH_DEFAULT_ENCODING");
    std::string const encoding = wanted != nullptr && *wanted != '\0' ? wanted : "UTF-8";
    auto& context = fl::i18n::lcmgmt::manager_context::instance();
    static fl::i18n::OvLocaleImpl copy(&context.database(), *context.global_locale.load());
    copy.set_encoding(encoding);
    context.global_locale = &copy;
    if (fl::i18n::to_ustring("\xA4\xA2") != (encoding == "UTF-8" ? u"\uFFFD\uFFFD" : u"\u3042")) {
        throw std::runtime_error("the default encoding did not change");
    }
    return encoding;
}

struct converter_deleter {
    void operator()(UConverter* c) const { ucnv_close(c); }
};
using icu_converter = std::unique_ptr<UConverter, converter_deleter>;

icu_converter open_icu(char const* encoding) {
    UErrorCode error = U_ZERO_ERROR;
    icu_converter c(ucnv_open(encoding, &error));
    if (U_FAILURE(error))
        throw std::runtime_error(encoding);
    return c;
}

// English prose with a few accented words, nearly all ASCII.
ustring prose(std::size_t bytes) {
    ustring const piece =
        u"The committee met on Tuesday to review the budget for the coming year, and after a "
        u"long discussion about the caf\u00E9 on the ground floor it agreed to keep the opening "
        u"hours as they are. A r\u00E9sum\u00E9 of the meeting will follow next week. ";
    ustring text;
    while (text.size() + piece.size() <= bytes) {
        text += piece;
    }
    return text;
}

// Realistic mixed text: English, accented Latin (where the encoding has it) and Japanese.
ustring sample(char const* encoding, std::size_t bytes) {
    std::vector<ustring> const pieces = {
        u"The quick brown fox jumps over the lazy dog. ",
        u"Caf\u00E9 cr\u00E8me br\u00FBl\u00E9e, na\u00EFve fa\u00E7ade. ",
        u"\u65E5\u672C\u8A9E\u306E\u30C6\u30AD\u30B9\u30C8\u3068\u6F22\u5B57\u3002"};
    icu_converter const c = open_icu(encoding);
    ustring text;
    std::size_t length = 0;
    for (std::size_t i = 0; length < bytes; ++i) {
        ustring const& piece = pieces[i % pieces.size()];
        for (char16_t unit : piece) {
            char out[8];
            UErrorCode error = U_ZERO_ERROR;
            ucnv_setFromUCallBack(c.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                                  &error);
            int32_t const n = ucnv_fromUChars(c.get(), out, 8, &unit, 1, &error);
            if (U_FAILURE(error))
                continue;  // not in this encoding
            if (length + n > bytes)
                return text;
            text += unit;
            length += n;
        }
    }
    return text;
}

std::string encode(char const* encoding, ustring const& text) {
    return fl::i18n::to_string(text, fl::i18n::codecvt_ustring_to_string(encoding, false));
}

struct iconv_descriptor {
    iconv_descriptor(char const* to, char const* from) : cd(iconv_open(to, from)) {
        if (cd == reinterpret_cast<iconv_t>(-1))
            throw std::runtime_error("iconv_open");
    }
    ~iconv_descriptor() { iconv_close(cd); }
    iconv_t cd;
};

template <class Out>
std::size_t run_iconv(iconv_t cd, char const* in, std::size_t in_size, Out& out) {
    iconv(cd, nullptr, nullptr, nullptr, nullptr);
    char* source = const_cast<char*>(in);
    char* target = reinterpret_cast<char*>(&out[0]);
    std::size_t left = out.size() * sizeof(out[0]);
    std::size_t const capacity = left;
    iconv(cd, &source, &in_size, &target, &left);
    return (capacity - left) / sizeof(out[0]);
}

void register_encoding(char const* encoding, char const* iconv_name, bool is_default,
                       char const* label = nullptr,
                       std::vector<std::size_t> const& sizes = {32u, 1024u, 65536u, 1048576u}) {
    std::string const name = label != nullptr ? label : encoding;
    for (std::size_t const size : sizes) {
        auto const text = std::make_shared<ustring>(label != nullptr ? prose(size)
                                                                     : sample(encoding, size));
        auto const bytes = std::make_shared<std::string>(encode(encoding, *text));
        std::string const decode = "decode/" + name + "/" + std::to_string(size);
        std::string const encode_name = "encode/" + name + "/" + std::to_string(size);
        auto set_bytes = [](benchmark::State& state, std::size_t n) {
            state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * n));
        };

        auto in = std::make_shared<fl::i18n::codecvt_string_to_ustring>(encoding, true);
        auto out = std::make_shared<fl::i18n::codecvt_ustring_to_string>(encoding, true);
        benchmark::RegisterBenchmark((decode + "/to_ustring").c_str(), [=](benchmark::State& s) {
            for (auto _ : s) {
                benchmark::DoNotOptimize(is_default ? fl::i18n::to_ustring(*bytes)
                                                    : fl::i18n::to_ustring(*bytes, *in));
            }
            set_bytes(s, bytes->size());
        });
        benchmark::RegisterBenchmark((decode + "/do_convert").c_str(), [=](benchmark::State& s) {
            for (auto _ : s)
                benchmark::DoNotOptimize(in->do_convert(bytes->data(), bytes->size()));
            set_bytes(s, bytes->size());
        });
        benchmark::RegisterBenchmark(
            (encode_name + "/to_string").c_str(), [=](benchmark::State& s) {
                for (auto _ : s) {
                    benchmark::DoNotOptimize(is_default ? fl::i18n::to_string(*text)
                                                        : fl::i18n::to_string(*text, *out));
                }
                set_bytes(s, bytes->size());
            });
        benchmark::RegisterBenchmark(
            (encode_name + "/do_convert").c_str(), [=](benchmark::State& s) {
                for (auto _ : s) {
                    benchmark::DoNotOptimize(out->do_convert(text->data(), text->size()));
                }
                set_bytes(s, bytes->size());
            });

        auto icu = std::make_shared<icu_converter>(open_icu(encoding));
        benchmark::RegisterBenchmark((decode + "/icu_ucnv").c_str(), [=](benchmark::State& s) {
            for (auto _ : s) {
                ustring result(bytes->size(), u'\0');
                UErrorCode error = U_ZERO_ERROR;
                int32_t const n =
                    ucnv_toUChars(icu->get(), &result[0], static_cast<int32_t>(result.size()),
                                  bytes->data(), static_cast<int32_t>(bytes->size()), &error);
                result.resize(static_cast<std::size_t>(n));
                benchmark::DoNotOptimize(result);
            }
            set_bytes(s, bytes->size());
        });
        benchmark::RegisterBenchmark((encode_name + "/icu_ucnv").c_str(), [=](benchmark::State& s) {
            for (auto _ : s) {
                std::string result(
                    UCNV_GET_MAX_BYTES_FOR_STRING(text->size(), ucnv_getMaxCharSize(icu->get())),
                    '\0');
                UErrorCode error = U_ZERO_ERROR;
                int32_t const n =
                    ucnv_fromUChars(icu->get(), &result[0], static_cast<int32_t>(result.size()),
                                    text->data(), static_cast<int32_t>(text->size()), &error);
                result.resize(static_cast<std::size_t>(n));
                benchmark::DoNotOptimize(result);
            }
            set_bytes(s, bytes->size());
        });

        if (std::string(encoding) == "UTF-8") {
            benchmark::RegisterBenchmark((decode + "/icu_utf8").c_str(), [=](benchmark::State& s) {
                for (auto _ : s) {
                    ustring result(bytes->size(), u'\0');
                    UErrorCode error = U_ZERO_ERROR;
                    int32_t n = 0;
                    u_strFromUTF8(&result[0], static_cast<int32_t>(result.size()), &n,
                                  bytes->data(), static_cast<int32_t>(bytes->size()), &error);
                    result.resize(static_cast<std::size_t>(n));
                    benchmark::DoNotOptimize(result);
                }
                set_bytes(s, bytes->size());
            });
            benchmark::RegisterBenchmark(
                (encode_name + "/icu_utf8").c_str(), [=](benchmark::State& s) {
                    for (auto _ : s) {
                        std::string result(text->size() * 3, '\0');
                        UErrorCode error = U_ZERO_ERROR;
                        int32_t n = 0;
                        u_strToUTF8(&result[0], static_cast<int32_t>(result.size()), &n,
                                    text->data(), static_cast<int32_t>(text->size()), &error);
                        result.resize(static_cast<std::size_t>(n));
                        benchmark::DoNotOptimize(result);
                    }
                    set_bytes(s, bytes->size());
                });
        }

        auto to_utf16 = std::make_shared<iconv_descriptor>("UTF-16LE", iconv_name);
        auto from_utf16 = std::make_shared<iconv_descriptor>(iconv_name, "UTF-16LE");
        benchmark::RegisterBenchmark((decode + "/iconv").c_str(), [=](benchmark::State& s) {
            for (auto _ : s) {
                ustring result(bytes->size(), u'\0');
                result.resize(run_iconv(to_utf16->cd, bytes->data(), bytes->size(), result));
                benchmark::DoNotOptimize(result);
            }
            set_bytes(s, bytes->size());
        });
        benchmark::RegisterBenchmark((encode_name + "/iconv").c_str(), [=](benchmark::State& s) {
            for (auto _ : s) {
                std::string result(text->size() * 4, '\0');
                result.resize(run_iconv(from_utf16->cd, reinterpret_cast<char const*>(text->data()),
                                        text->size() * 2, result));
                benchmark::DoNotOptimize(result);
            }
            set_bytes(s, bytes->size());
        });
    }
}

// The default-encoding functions from one and two threads at once.
void register_threads(std::string const& encoding) {
    for (std::size_t const size : {32u, 1024u}) {
        auto const bytes = std::make_shared<std::string>(
            encode(encoding.c_str(), sample(encoding.c_str(), size)));
        benchmark::RegisterBenchmark(
            ("threads/" + encoding + "/" + std::to_string(size) + "/to_ustring").c_str(),
            [=](benchmark::State& s) {
                for (auto _ : s) {
                    benchmark::DoNotOptimize(fl::i18n::to_ustring(*bytes));
                }
                s.SetBytesProcessed(static_cast<int64_t>(s.iterations() * bytes->size()));
            })
            ->Threads(1)
            ->Threads(2)
            ->UseRealTime();
    }
}

int const registered = [] {
    std::string const encoding = make_default_encoding();
    register_encoding("UTF-8", "UTF-8", encoding == "UTF-8");
    register_encoding("UTF-8", "UTF-8", encoding == "UTF-8", "UTF-8-prose", {65536u, 1048576u});
    register_encoding("EUC-JP", "EUC-JP", encoding == "EUC-JP");
    register_threads(encoding);
    return 0;
}();

}  // namespace
