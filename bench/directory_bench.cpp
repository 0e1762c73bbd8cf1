// Listing a 10 000-entry directory, with and without a "*.xml" wildcard, against readdir with
// fnmatch (the floor) and std::filesystem with std::regex (what callers would write by hand),
// all in one run.

#include <fl/filesystem.hpp>

#include <benchmark/benchmark.h>

#include <dirent.h>
#include <fnmatch.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>

namespace {

namespace fs = fl::filesystem;
namespace sfs = std::filesystem;

// Ten thousand empty files, one in ten an .xml, in a temporary directory removed at exit.
class generated_directory {
public:
    generated_directory() {
        std::string pattern = (sfs::temp_directory_path() / "ovi18n-dir-bench-XXXXXX").string();
        path_ = ::mkdtemp(pattern.data());
        for (int i = 0; i < 10000; ++i) {
            std::string const name = "entry_" + std::to_string(i) + (i % 10 == 0 ? ".xml" : ".txt");
            std::ofstream(path_ + "/" + name);
        }
    }
    ~generated_directory() { sfs::remove_all(path_); }
    std::string const& path() const { return path_; }

private:
    std::string path_;
};

generated_directory const& directory() {
    static generated_directory const instance;
    return instance;
}

fl::i18n::ustring directory_text() {
    std::string const& bytes = directory().path();
    return fl::i18n::ustring(bytes.begin(), bytes.end());
}

template <class Accept>
int readdir_count(Accept accept) {
    int count = 0;
    DIR* const handle = ::opendir(directory().path().c_str());
    while (dirent* const entry = ::readdir(handle)) {
        count += accept(entry->d_name) ? 1 : 0;
    }
    ::closedir(handle);
    return count;
}

void library_wildcard(benchmark::State& state) {
    auto const text = directory_text();
    fs::wildcard_pattern_string_context const pattern(u"*.xml");
    for (auto _ : state) {
        int count = 0;
        for (fs::directory_iterator it(text, pattern); it != fs::directory_iterator(); ++it) {
            ++count;
        }
        benchmark::DoNotOptimize(count);
    }
}
BENCHMARK(library_wildcard)->Unit(benchmark::kMicrosecond);

void readdir_fnmatch(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            readdir_count([](char const* name) { return ::fnmatch("*.xml", name, 0) == 0; }));
    }
}
BENCHMARK(readdir_fnmatch)->Unit(benchmark::kMicrosecond);

void std_filesystem_regex(benchmark::State& state) {
    std::regex const pattern(".*\\.xml");
    for (auto _ : state) {
        int count = 0;
        for (auto const& entry : sfs::directory_iterator(directory().path())) {
            count += std::regex_match(entry.path().filename().string(), pattern) ? 1 : 0;
        }
        benchmark::DoNotOptimize(count);
    }
}
BENCHMARK(std_filesystem_regex)->Unit(benchmark::kMicrosecond);

void library_plain(benchmark::State& state) {
    auto const text = directory_text();
    for (auto _ : state) {
        int count = 0;
        for (fs::directory_iterator it(text); it != fs::directory_iterator(); ++it) {
            ++count;
        }
        benchmark::DoNotOptimize(count);
    }
}
BENCHMARK(library_plain)->Unit(benchmark::kMicrosecond);

void readdir_plain(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(readdir_count([](char const*) { return true; }));
    }
}
BENCHMARK(readdir_plain)->Unit(benchmark::kMicrosecond);

}  // namespace
