// Path algebra and status queries against std::filesystem and raw stat, in one run so that
// the ratios compare like with like.

#include <fl/filesystem.hpp>

#include <benchmark/benchmark.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace d = fl::filesystem::detail;
namespace sfs = std::filesystem;

// 80 units: a typical deep resource path with an extension.
std::string const narrow_path =
    "/opt/application/resources/messages/de_DE/catalogs/viewer/toolbar_messages.xml";
// The same with doubled and trailing separators, for the native form.
std::string const messy_path =
    "/opt//application/resources//messages/de_DE/catalogs//viewer/toolbar_message/";

fl::i18n::ustring widen(std::string const& s) {
    return fl::i18n::ustring(s.begin(), s.end());
}

void fl_parent_path(benchmark::State& state) {
    auto const text = widen(narrow_path);
    for (auto _ : state) {
        benchmark::DoNotOptimize(d::extract_parent_path(text));
    }
}
BENCHMARK(fl_parent_path);

void std_parent_path(benchmark::State& state) {
    sfs::path const path(narrow_path);
    for (auto _ : state) {
        benchmark::DoNotOptimize(path.parent_path());
    }
}
BENCHMARK(std_parent_path);

void fl_filename(benchmark::State& state) {
    auto const text = widen(narrow_path);
    for (auto _ : state) {
        benchmark::DoNotOptimize(d::extract_filename(text));
    }
}
BENCHMARK(fl_filename);

void std_filename(benchmark::State& state) {
    sfs::path const path(narrow_path);
    for (auto _ : state) {
        benchmark::DoNotOptimize(path.filename());
    }
}
BENCHMARK(std_filename);

void fl_extension(benchmark::State& state) {
    auto const text = widen(narrow_path);
    for (auto _ : state) {
        benchmark::DoNotOptimize(d::extract_extension(text));
    }
}
BENCHMARK(fl_extension);

void std_extension(benchmark::State& state) {
    sfs::path const path(narrow_path);
    for (auto _ : state) {
        benchmark::DoNotOptimize(path.extension());
    }
}
BENCHMARK(std_extension);

void fl_native_form(benchmark::State& state) {
    auto const text = widen(messy_path);
    for (auto _ : state) {
        benchmark::DoNotOptimize(d::make_native_form(text, true));
    }
}
BENCHMARK(fl_native_form);

// The closest standard operation: it also collapses separators (and resolves dots, which the
// native form doesn't).
void std_lexically_normal(benchmark::State& state) {
    sfs::path const path(messy_path);
    for (auto _ : state) {
        benchmark::DoNotOptimize(path.lexically_normal());
    }
}
BENCHMARK(std_lexically_normal);

// A file in the build tree's scratch area, or the current directory.
class status_target {
public:
    status_target() {
        char const* scratch = std::getenv("OVI18N_TEST_TMP");
        narrow_ = (scratch != nullptr ? std::string(scratch) : std::string(".")) +
                  "/filesystem_bench_target.txt";
        sfs::create_directories(sfs::path(narrow_).parent_path());
        std::ofstream(narrow_) << "x";
        wide_ = widen(narrow_);
    }
    ~status_target() { std::remove(narrow_.c_str()); }

    std::string const& narrow() const { return narrow_; }
    fl::i18n::ustring const& wide() const { return wide_; }

private:
    std::string narrow_;
    fl::i18n::ustring wide_;
};

status_target const& target() {
    static status_target const instance;
    return instance;
}

void fl_exists(benchmark::State& state) {
    auto const& path = target().wide();
    for (auto _ : state) {
        benchmark::DoNotOptimize(fl::filesystem::exists(path));
    }
}
BENCHMARK(fl_exists);

void fl_status(benchmark::State& state) {
    auto const& path = target().wide();
    for (auto _ : state) {
        benchmark::DoNotOptimize(fl::filesystem::status(path));
    }
}
BENCHMARK(fl_status);

void fl_status_upath(benchmark::State& state) {
    fl::filesystem::upath const path(target().wide());
    for (auto _ : state) {
        benchmark::DoNotOptimize(fl::filesystem::status(path));
    }
}
BENCHMARK(fl_status_upath);

void raw_stat(benchmark::State& state) {
    auto const& path = target().narrow();
    for (auto _ : state) {
        struct stat info {};
        benchmark::DoNotOptimize(::stat(path.c_str(), &info));
    }
}
BENCHMARK(raw_stat);

}  // namespace
