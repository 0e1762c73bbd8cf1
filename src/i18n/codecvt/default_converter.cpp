#include "i18n/codecvt/default_converter.hpp"

#include <fl/i18n/codecvt/codecvt_exception.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "common/throw_exception.hpp"
#include "i18n/codecvt/code_converter_context.hpp"
#include "i18n/codecvt/unique_converter.hpp"

#include <boost/thread/once.hpp>
#include <boost/thread/tss.hpp>

#include <unicode/uversion.h>

#include <atomic>
#include <memory>

namespace fl {
namespace i18n {
namespace detail {

namespace {

using lcctype::code_converter_context;

// The once-flags publish through Boost's compiled library, where a race detector cannot see
// it; the pointers are atomic so that the ordering is also stated where it can.

boost::once_flag master_once = BOOST_ONCE_INIT;
// Never deleted: clones may be asked for during static destruction.
std::atomic<code_converter_context*> master{nullptr};

boost::once_flag thread_copies_once = BOOST_ONCE_INIT;
// Never deleted either, so that the key outlives every thread that still holds a copy.
std::atomic<boost::thread_specific_ptr<code_converter_context>*> thread_copies{nullptr};

UConverter* open_global_encoding(UErrorCode& error) {
    error = U_ZERO_ERROR;
    return ucnv_open(OvLocale::global().getEncoding().c_str(), &error);
}

void make_master() {
    UErrorCode error = U_ZERO_ERROR;
    unique_converter opened(open_global_encoding(error));
    if (error > U_ZERO_ERROR) {
        // Nothing is thrown: each clone falls back to opening the encoding on its own.
        opened.reset();
    }
    master.store(new code_converter_context(std::move(opened)), std::memory_order_release);
}

void make_thread_copies() {
    thread_copies.store(new boost::thread_specific_ptr<code_converter_context>(),
                        std::memory_order_release);
}

UConverter* clone(UConverter const* original, UErrorCode& error) {
    error = U_ZERO_ERROR;
#if U_ICU_VERSION_MAJOR_NUM >= 71
    return ucnv_clone(original, &error);
#else
    return ucnv_safeClone(original, nullptr, nullptr, &error);
#endif
}

}  // namespace

UConverter* default_converter_master() {
    boost::call_once(master_once, &make_master);
    return master.load(std::memory_order_acquire)->converter.get();
}

UConverter* clone_default_converter() {
    if (UConverter const* const original = default_converter_master()) {
        UErrorCode error = U_ZERO_ERROR;
        unique_converter copy(clone(original, error));
        if (error <= U_ZERO_ERROR && copy) {
            return copy.release();
        }
    }
    UErrorCode error = U_ZERO_ERROR;
    unique_converter opened(open_global_encoding(error));
    if (error > U_ZERO_ERROR || !opened) {
        fl::detail::throw_exception(CvtConversionFailure());
    }
    return opened.release();
}

UConverter* thread_default_converter() {
    boost::call_once(thread_copies_once, &make_thread_copies);
    boost::thread_specific_ptr<code_converter_context>* const copies =
        thread_copies.load(std::memory_order_acquire);
    code_converter_context* copy = copies->get();
    if (copy == nullptr) {
        std::unique_ptr<code_converter_context> fresh(
            new code_converter_context(unique_converter(clone_default_converter())));
        copies->reset(fresh.get());
        copy = fresh.release();
    }
    return copy->converter.get();
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
