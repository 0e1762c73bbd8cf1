// Cached message lookups: the service's raw and formatted get_message, against a bare
// std::unordered_map lookup of the same key (the floor) and glibc's dgettext on an equivalent
// .mo file. The lookups also run from 2 and 4 threads.

#include <fl/i18n/catalog/message_catalog.hpp>
#include <fl/i18n/catalog/message_id.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <benchmark/benchmark.h>

#include <libintl.h>
#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <unordered_map>

namespace {

namespace sfs = std::filesystem;
using fl::i18n::MessageCatalog;
using fl::i18n::ustring;

char const* const raw_text = "The document could not be saved.";
char const* const two_hole_text = "The file {0} has {1} lines.";

void run(std::string const& command) {
    if (std::system(command.c_str()) != 0) {
        throw std::runtime_error("failed: " + command);
    }
}

// A scratch tree with the service's catalog, the .mo file and a de_DE.UTF-8 locale of its own;
// made once, removed at exit.
struct fixture {
    sfs::path dir;

    fixture() {
        char name[] = "/tmp/ovi18n_catalog_service_bench_XXXXXX";
        if (mkdtemp(name) == nullptr) {
            throw std::runtime_error("no temporary directory");
        }
        dir = name;
        sfs::create_directories(dir / "root/resources/bench/en");
        std::ofstream(dir / "root/resources/bench/en/messages.xml")
            << "<rsccat><message>\n<entry key=\"not_saved\">" << raw_text
            << "</entry>\n<entry key=\"lines\">" << two_hole_text
            << "</entry>\n</message></rsccat>\n";
        std::string const root = (dir / "root").string();
        MessageCatalog::MessageCatalogInit(ustring(root.begin(), root.end()));

        sfs::create_directories(dir / "mo/de/LC_MESSAGES");
        std::ofstream(dir / "bench.po")
            << "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n\n"
            << "msgid \"not_saved\"\nmsgstr \"" << raw_text << "\"\n";
        run("msgfmt -o " + (dir / "mo/de/LC_MESSAGES/bench.mo").string() + " " +
            (dir / "bench.po").string());
        sfs::create_directories(dir / "locales");
        run("localedef --no-archive -c --quiet -i de_DE -f UTF-8 " +
            (dir / "locales/de_DE.UTF-8").string() + " >/dev/null 2>&1 || true");
        setenv("LOCPATH", (dir / "locales").c_str(), 1);
        unsetenv("LANGUAGE");
        if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) {
            throw std::runtime_error("de_DE.UTF-8 could not be built");
        }
        bindtextdomain("bench", (dir / "mo").c_str());
    }
};

fixture const& setup() {
    // Never destroyed, so the removal at exit still finds the directory.
    static fixture const& f = *[] {
        auto* made = new fixture;
        std::atexit([] {
            std::error_code ignored;
            sfs::remove_all(setup().dir, ignored);
        });
        return made;
    }();
    return f;
}

void get_message_raw(benchmark::State& state) {
    setup();
    fl::i18n::MessageID const id("bench:messages:not_saved");
    fl::i18n::OvLocale const& locale = fl::i18n::OvLocale::classic();
    for (auto _ : state) {
        benchmark::DoNotOptimize(MessageCatalog::get_message(id, locale));
    }
    state.SetItemsProcessed(state.iterations());
}

void get_message_two_arguments(benchmark::State& state) {
    setup();
    resource_core::BaseMsgID const id("bench:messages", "lines", {ustring(u"report.txt"), 1234L});
    fl::i18n::OvLocale const& locale = fl::i18n::OvLocale::classic();
    for (auto _ : state) {
        benchmark::DoNotOptimize(MessageCatalog::get_message(id, locale));
    }
    state.SetItemsProcessed(state.iterations());
}

void unordered_map_floor(benchmark::State& state) {
    std::string const text(raw_text);
    std::unordered_map<std::string, ustring> const table{
        {"bench:messages:not_saved", ustring(text.begin(), text.end())},
        {"bench:messages:lines", u"x"}};
    std::string const key("bench:messages:not_saved");
    for (auto _ : state) {
        benchmark::DoNotOptimize(ustring(table.find(key)->second));
    }
    state.SetItemsProcessed(state.iterations());
}

void glibc_dgettext(benchmark::State& state) {
    setup();
    if (std::string(dgettext("bench", "not_saved")) != raw_text) {
        state.SkipWithError("dgettext found no translation");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(dgettext("bench", "not_saved"));
    }
    state.SetItemsProcessed(state.iterations());
}

}  // namespace

BENCHMARK(get_message_raw)->ThreadRange(1, 4)->UseRealTime();
BENCHMARK(get_message_two_arguments)->ThreadRange(1, 4)->UseRealTime();
BENCHMARK(unordered_map_floor)->ThreadRange(1, 4)->UseRealTime();
BENCHMARK(glibc_dgettext)->ThreadRange(1, 4)->UseRealTime();
