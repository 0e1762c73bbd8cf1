#include <fl/i18n/codecvt/string_conversion.hpp>

#include "i18n/codecvt/code_converter_context.hpp"
#include "i18n/codecvt/default_converter.hpp"

#include <gtest/gtest.h>
#include <boost/thread/barrier.hpp>

#include <algorithm>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace fl::i18n {
namespace {

constexpr int thread_count = 8;

TEST(default_converter, many_threads_convert_at_once) {
    std::string const bytes(3000, 'q');
    ustring const text = u"mixed \u00E9 text";
    std::vector<int> failures(thread_count, 0);
    std::vector<std::thread> threads;
    for (int t = 0; t < thread_count; ++t) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < 200; ++i) {
                if (to_ustring(bytes) != ustring(3000, u'q') ||
                    to_string(text) != "mixed \x1A text" || to_ustring("a\xFF") != u"a\uFFFD") {
                    ++failures[t];
                }
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (int t = 0; t < thread_count; ++t)
        EXPECT_EQ(failures[t], 0) << "thread " << t;
}

// Copies are clones of the master: were a clone shared, the copies would not be distinct. A
// nested loan on the same thread gets a converter of its own.
TEST(default_converter, each_thread_has_its_own_copy_closed_at_thread_end) {
    detail::default_converter_master();  // the master is a record too; make it first
    long const before = lcctype::code_converter_context::alive.load();
    std::vector<UConverter*> copies(thread_count, nullptr);
    std::vector<char> stable(thread_count, 0);
    std::vector<char> nested_apart(thread_count, 0);
    long alive_while_running = 0;
    boost::barrier all_have_copies(thread_count + 1);
    boost::barrier may_end(thread_count + 1);
    std::vector<std::thread> threads;
    for (int t = 0; t < thread_count; ++t) {
        threads.emplace_back([&, t] {
            {
                detail::lent_default_converter const first;
                copies[t] = first.get();
                detail::lent_default_converter const nested;
                nested_apart[t] = nested.get() != first.get() && to_ustring("nested") == u"nested";
            }
            stable[t] = detail::lent_default_converter().get() == copies[t];
            // All copies live at once, so none can reuse another's address.
            all_have_copies.wait();
            may_end.wait();
        });
    }
    all_have_copies.wait();
    alive_while_running = lcctype::code_converter_context::alive.load();
    may_end.wait();
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(alive_while_running, before + thread_count);
    std::set<UConverter*> const distinct(copies.begin(), copies.end());
    EXPECT_EQ(distinct.size(), static_cast<std::size_t>(thread_count));
    EXPECT_EQ(std::count(stable.begin(), stable.end(), 1), thread_count);
    EXPECT_EQ(std::count(nested_apart.begin(), nested_apart.end(), 1), thread_count);
    EXPECT_EQ(lcctype::code_converter_context::alive.load(), before);
}

// A conversion from a thread's own exit, after its copy is closed, works on a clone.
TEST(default_converter, converts_while_the_thread_exits) {
    struct converts_at_exit {
        ustring* out;
        ~converts_at_exit() { *out = to_ustring("bye"); }
    };
    detail::default_converter_master();
    long const before = lcctype::code_converter_context::alive.load();
    ustring said;
    std::thread([&said] {
        thread_local converts_at_exit last{&said};
        static_cast<void>(to_ustring("hi"));  // made after last, so closed before it goes
    }).join();
    EXPECT_EQ(said, u"bye");
    EXPECT_EQ(lcctype::code_converter_context::alive.load(), before);
}

}  // namespace
}  // namespace fl::i18n
