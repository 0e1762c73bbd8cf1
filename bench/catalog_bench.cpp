// Loading a large catalog file against expat reading the same bytes with no handlers (the
// floor), and formatting a message against ICU's MessageFormat driven directly.

#include <fl/i18n/catalog/message_catalog.hpp>

#include "i18n/catalog/format_text.hpp"
#include "i18n/catalog/message_catalog_impl.hpp"

#include <benchmark/benchmark.h>
#include <expat.h>
#include <unicode/fieldpos.h>
#include <unicode/fmtable.h>
#include <unicode/locid.h>
#include <unicode/msgfmt.h>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace {

// 10 000 entries of about 80 bytes of Latin, accented and Japanese text, one per line; every
// tenth entry runs over three lines.
std::string const& sample_file() {
    // Never destroyed, so the removal at exit still finds the name.
    static std::string const& path = *new std::string([] {
        char name[] = "/tmp/ovi18n_catalog_bench_XXXXXX";
        int const fd = mkstemp(name);
        if (fd < 0) {
            throw std::runtime_error("no temporary file");
        }
        close(fd);
        std::ofstream out(name, std::ios::binary);
        out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<rsccat version=\"1.0\" "
               "locale=\"en_US\">\n<message>\n";
        for (int i = 0; i < 10000; ++i) {
            out << "<entry key=\"key_" << i << "\">";
            if (i % 10 == 0) {
                out << "Fichier {0} d\xc3\xa9j\xc3\xa0 ouvert\n    \xe3\x83\x95\xe3\x82\xa1"
                       "\xe3\x82\xa4\xe3\x83\xab {1}\n    caf\xc3\xa9 &amp; more</entry>\n";
            } else {
                out << "The file {0} is r\xc3\xa9"
                       "ady \xe3\x83\x95\xe3\x82\xa1\xe3\x82\xa4"
                       "\xe3\x83\xab \xe6\x97\xa5\xe6\x9c\xac</entry>\n";
            }
        }
        out << "</message>\n</rsccat>\n";
        std::atexit([] { std::remove(sample_file().c_str()); });
        return std::string(name);
    }());
    return path;
}

std::int64_t sample_size() {
    std::ifstream in(sample_file(), std::ios::binary | std::ios::ate);
    return static_cast<std::int64_t>(in.tellg());
}

void load_catalog(benchmark::State& state) {
    fl::filesystem::upath const file(fl::i18n::ustring(sample_file().begin(), sample_file().end()));
    for (auto _ : state) {
        fl::i18n::MessageCatalogImpl const catalog("bench:catalog", file, "en_US");
        benchmark::DoNotOptimize(&catalog);
    }
    state.SetBytesProcessed(state.iterations() * sample_size());
}

// The bytes are read once beforehand: the floor is expat alone, so the library's figure carries
// the reading of the file as well as its own work.
// Parsing and reading the file without keeping anything: what the table costs is the rest.
struct null_store : fl::i18n::MessageCatalogDataStore {
    void add_entry(std::string const&, std::string const& text) override { bytes += text.size(); }
    std::size_t bytes = 0;
};

void parse_only(benchmark::State& state) {
    fl::filesystem::upath const file(fl::i18n::ustring(sample_file().begin(), sample_file().end()));
    for (auto _ : state) {
        null_store store;
        fl::i18n::XMLCatalogFileLoader loader;
        benchmark::DoNotOptimize(loader.load(file, &store));
    }
    state.SetBytesProcessed(state.iterations() * sample_size());
}

void expat_floor(benchmark::State& state) {
    std::ifstream in(sample_file(), std::ios::binary);
    std::string const text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    for (auto _ : state) {
        XML_Parser parser = XML_ParserCreate("UTF-8");
        if (XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) != XML_STATUS_OK) {
            throw std::runtime_error("the sample catalog is not well-formed");
        }
        XML_ParserFree(parser);
    }
    state.SetBytesProcessed(state.iterations() * sample_size());
}

fl::i18n::ustring const text = u"The file {0} has {1} lines.";

void format_checked(benchmark::State& state) {
    fl::i18n::MessageCatalog::ArgList const args{fl::i18n::ustring(u"notes.txt"), 1234L};
    for (auto _ : state) {
        benchmark::DoNotOptimize(fl::i18n::MessageCatalog::GetFormattedMessage(text, args));
    }
}

void format_unchecked(benchmark::State& state) {
    fl::i18n::MessageCatalog::ArgList const args{fl::i18n::ustring(u"notes.txt"), 1234L};
    for (auto _ : state) {
        benchmark::DoNotOptimize(fl::i18n::catalog::format_text(text, args, false));
    }
}

void format_icu(benchmark::State& state) {
    fl::i18n::ustring const name = u"notes.txt";
    for (auto _ : state) {
        UErrorCode status = U_ZERO_ERROR;
        icu::MessageFormat format(icu::UnicodeString(text.data(), int32_t(text.size())),
                                  icu::Locale("en", "US", "POSIX"), status);
        icu::Formattable const values[] = {
            icu::Formattable(icu::UnicodeString(name.data(), int32_t(name.size()))),
            icu::Formattable(static_cast<int64_t>(1234))};
        icu::UnicodeString result;
        icu::FieldPosition position;
        format.format(values, 2, result, position, status);
        fl::i18n::ustring out(result.getBuffer(), std::size_t(result.length()));
        benchmark::DoNotOptimize(out);
    }
}

}  // namespace

BENCHMARK(load_catalog)->Name("catalog/load_10000")->Unit(benchmark::kMillisecond);
BENCHMARK(parse_only)->Name("catalog/parse_only")->Unit(benchmark::kMillisecond);
BENCHMARK(expat_floor)->Name("catalog/expat_floor")->Unit(benchmark::kMillisecond);
BENCHMARK(format_checked)->Name("format/checked");
BENCHMARK(format_unchecked)->Name("format/unchecked");
BENCHMARK(format_icu)->Name("format/icu_message_format");
