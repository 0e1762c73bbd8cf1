#include <fl/i18n/facet/global_std_locale.hpp>

#include <fl/i18n/facet/ctype_facet.hpp>
#include <fl/i18n/facet/numpunct_facet.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "common/visible_call_once.hpp"
#include "i18n/facet/std_char16_support.hpp"

#include <boost/thread/lock_types.hpp>
#include <boost/thread/mutex.hpp>

#include <sstream>

namespace fl {
namespace i18n {
namespace facet {

namespace {

struct std_locale_holder {
    std::locale* locale;
    bool initialized;
};

// Made once and never freed, so the locale outlives every user, static destructors included.
boost::once_flag mutex_once = BOOST_ONCE_INIT;
boost::mutex* holder_mutex = nullptr;
boost::once_flag holder_once = BOOST_ONCE_INIT;
std_locale_holder* holder = nullptr;

void make_mutex() {
    holder_mutex = new boost::mutex;
}

void make_holder() {
    holder = new std_locale_holder{new std::locale(std::locale::classic()), false};
}

std_locale_holder& the_holder() {
    fl::detail::visible_call_once(holder_once, &make_holder);
    return *holder;
}

// The standard library makes the number punctuation cache of a locale at first use and lets its
// readers find it without ordering them. Making it here, under the mutex, leaves every later
// user of the locale, in any thread, a reader only.
void prime_number_cache(std::locale const& locale) {
    std::basic_ostringstream<char16_t> stream;
    stream.imbue(locale);
    stream << 0;
}

std::locale build_locale(unsigned int mask) {
    using namespace std_locale_facets;
    std::locale result(std::locale::classic(), new ctype_facet<char16_t>(OvLocale::global()));
    if (mask & (numpunct | num_put)) {
        result = std::locale(result, new numpunct_facet<char16_t>());
    }
    if (mask & num_put) {
        result = std::locale(result, new std::num_put<char16_t>(0));
        prime_number_cache(result);
    }
    return result;
}

}  // namespace

void init_global_std_locale(unsigned int mask) {
    fl::detail::visible_call_once(mutex_once, &make_mutex);
    boost::unique_lock<boost::mutex> lock(*holder_mutex);
    std_locale_holder& held = the_holder();
    if (held.initialized) {
        return;
    }
    // Assigned into the held object, which never moves, so that references handed out before
    // stay valid; the classic copy it held is released.
    *held.locale = build_locale(mask);
    held.initialized = true;
}

std::locale const& get_global_std_locale() {
    return *the_holder().locale;
}

}  // namespace facet
}  // namespace i18n
}  // namespace fl
