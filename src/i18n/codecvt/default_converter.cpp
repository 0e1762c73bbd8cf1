#include "i18n/codecvt/default_converter.hpp"

#include <fl/i18n/codecvt/codecvt_exception.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "common/throw_exception.hpp"
#include "i18n/codecvt/ascii_runs.hpp"
#include "i18n/codecvt/code_converter_context.hpp"

#include <boost/thread/once.hpp>

#include <unicode/uversion.h>

#include <atomic>
#include <memory>

namespace fl {
namespace i18n {
namespace detail {

namespace {

using lcctype::code_converter_context;

// The once-flag publishes through Boost's compiled library, where a race detector cannot see
// it; the pointer is atomic so that the ordering is also stated where it can.
boost::once_flag master_once = BOOST_ONCE_INIT;
// Never deleted: clones may be asked for during static destruction.
std::atomic<code_converter_context*> master{nullptr};

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
    auto* const record = new code_converter_context(std::move(opened));
    if (record->converter) {
        record->ascii_transparent = is_ascii_transparent(record->converter.get());
    }
    master.store(record, std::memory_order_release);
}

code_converter_context const& master_record() {
    boost::call_once(master_once, &make_master);
    return *master.load(std::memory_order_acquire);
}

UConverter* clone(UConverter const* original, UErrorCode& error) {
    error = U_ZERO_ERROR;
#if U_ICU_VERSION_MAJOR_NUM >= 71
    return ucnv_clone(original, &error);
#else
    return ucnv_safeClone(original, nullptr, nullptr, &error);
#endif
}

// The calling thread's copy. Plain data, so that it stays readable while the thread's other
// objects are destroyed; thread_copy_closer closes the copy and marks the thread as exiting.
struct thread_copy_state {
    code_converter_context* copy;
    bool lent;
    bool exiting;
};
thread_local thread_copy_state thread_copy{nullptr, false, false};

struct thread_copy_closer {
    ~thread_copy_closer() {
        thread_copy.exiting = true;
        delete thread_copy.copy;
        thread_copy.copy = nullptr;
    }
};
thread_local thread_copy_closer closer_at_thread_end;

code_converter_context* thread_copy_to_lend() {
    if (thread_copy.lent || thread_copy.exiting) {
        return nullptr;
    }
    if (thread_copy.copy == nullptr) {
        // Using the closer registers its destructor for this thread.
        static_cast<void>(&closer_at_thread_end);
        bool ascii_transparent = false;
        auto fresh =
            std::make_unique<code_converter_context>(clone_default_converter(&ascii_transparent));
        fresh->ascii_transparent = ascii_transparent;
        thread_copy.copy = fresh.release();
    }
    return thread_copy.copy;
}

}  // namespace

UConverter* default_converter_master() {
    return master_record().converter.get();
}

bool default_encoding_is_ascii_transparent() {
    return master_record().ascii_transparent;
}

unique_converter clone_default_converter(bool* ascii_transparent) {
    code_converter_context const& record = master_record();
    if (UConverter const* const original = record.converter.get()) {
        UErrorCode error = U_ZERO_ERROR;
        unique_converter copy(clone(original, error));
        if (error <= U_ZERO_ERROR && copy) {
            if (ascii_transparent != nullptr) {
                *ascii_transparent = record.ascii_transparent;
            }
            return copy;
        }
    }
    UErrorCode error = U_ZERO_ERROR;
    unique_converter opened(open_global_encoding(error));
    if (error > U_ZERO_ERROR || !opened) {
        fl::detail::throw_exception(CvtConversionFailure());
    }
    if (ascii_transparent != nullptr) {
        *ascii_transparent = is_ascii_transparent(opened.get());
    }
    return opened;
}

lent_default_converter::lent_default_converter() : use_{nullptr, false} {
    if (code_converter_context* const copy = thread_copy_to_lend()) {
        thread_copy.lent = true;
        use_ = converter_use{copy->converter.get(), copy->ascii_transparent};
        return;
    }
    bool ascii_transparent = false;
    clone_ = clone_default_converter(&ascii_transparent);
    use_ = converter_use{clone_.get(), ascii_transparent};
}

lent_default_converter::~lent_default_converter() {
    if (!clone_) {
        ucnv_reset(use_.converter);
        thread_copy.lent = false;
    }
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
