#include "i18n/codecvt/lent_converter.hpp"

#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"

#include <memory>

namespace fl {
namespace i18n {
namespace detail {

namespace {

struct named_converter {
    std::string name;
    unique_converter converter;
};

// Plain data, so that it stays readable while the thread's other objects are destroyed; the
// closer deletes the converter and marks the thread as exiting.
struct thread_state {
    named_converter* kept;
    bool lent;
    bool exiting;
};
thread_local thread_state state{nullptr, false, false};

struct closer {
    ~closer() {
        state.exiting = true;
        delete state.kept;
        state.kept = nullptr;
    }
};
thread_local closer close_at_thread_end;

}  // namespace

unique_converter open_converter(std::string const& encoding) {
    UErrorCode error = U_ZERO_ERROR;
    unique_converter opened(ucnv_open(encoding.c_str(), &error));
    if (error > U_ZERO_ERROR || !opened) {
        fl::detail::throw_exception(CvtInvalidEncodingName(encoding));
    }
    return opened;
}

lent_converter::lent_converter(std::string const& encoding) {
    if (state.lent || state.exiting) {
        own_ = open_converter(encoding);
        converter_ = own_.get();
        return;
    }
    if (state.kept == nullptr || state.kept->name != encoding) {
        // Using the closer registers its destructor for this thread.
        static_cast<void>(&close_at_thread_end);
        auto fresh =
            std::make_unique<named_converter>(named_converter{encoding, open_converter(encoding)});
        delete state.kept;
        state.kept = fresh.release();
    }
    state.lent = true;
    converter_ = state.kept->converter.get();
}

lent_converter::~lent_converter() {
    if (!own_) {
        ucnv_reset(converter_);
        state.lent = false;
    }
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
