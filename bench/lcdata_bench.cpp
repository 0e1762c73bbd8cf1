// Reading the locale database file, which every process pays once at start-up, against expat
// reading the same file with no handlers: the difference is what applying the elements costs.

#include <fl/i18n/lcmgmt/lcdb.hpp>

#include "i18n/lcmgmt/startup/lcdata_parser.hpp"

#include <benchmark/benchmark.h>
#include <expat.h>

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

char const* const sample = OVI18N_SAMPLE_LCDATA;

void parse_library(benchmark::State& state) {
    for (auto _ : state) {
        fl::i18n::lcmgmt::Lcdb database;
        std::vector<std::string> warnings;
        fl::i18n::lcmgmt::parseLcData(database, sample, warnings);
        benchmark::DoNotOptimize(warnings.data());
    }
}

void parse_expat(benchmark::State& state) {
    for (auto _ : state) {
        std::ifstream in(sample, std::ios::binary);
        std::string const text((std::istreambuf_iterator<char>(in)),
                               std::istreambuf_iterator<char>());
        XML_Parser parser = XML_ParserCreate(nullptr);
        if (XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) != XML_STATUS_OK) {
            throw std::runtime_error("the sample database is not well-formed");
        }
        XML_ParserFree(parser);
    }
}

// A fresh database is part of the library's figure; this shows how much.
void fresh_database(benchmark::State& state) {
    for (auto _ : state) {
        fl::i18n::lcmgmt::Lcdb database;
        benchmark::DoNotOptimize(&database);
    }
}

}  // namespace

BENCHMARK(parse_library)->Name("lcdata/library");
BENCHMARK(parse_expat)->Name("lcdata/expat");
BENCHMARK(fresh_database)->Name("lcdata/fresh_database");
