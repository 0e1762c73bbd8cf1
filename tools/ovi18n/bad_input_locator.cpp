#include "bad_input_locator.hpp"

#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

#include <memory>
#include <vector>

namespace ovi18n_tool {
namespace {

struct found_error {
    char const* window;
    char const* end;
    bad_input result;
    bool found = false;
};

// Notes each refused sequence that ends at the one sought, and skips every refused sequence so
// that decoding goes on to the end of the window.
void note_error(void const* context, UConverterToUnicodeArgs* args, char const* units,
                std::int32_t length, UConverterCallbackReason reason, UErrorCode* error) {
    if (reason > UCNV_IRREGULAR) {
        return;
    }
    auto* found = static_cast<found_error*>(const_cast<void*>(context));
    if (args->source == found->end) {
        found->result.start = static_cast<std::size_t>(args->source - found->window) -
                              static_cast<std::size_t>(length);
        found->result.bytes.assign(units, static_cast<std::size_t>(length));
        found->found = true;
    }
    *error = U_ZERO_ERROR;
}

}  // namespace

bad_input locate_bad_input(std::string const& encoding, char const* window, std::size_t end) {
    found_error found{window, window + end, {end == 0 ? 0 : end - 1, std::string()}};
    if (end > 0) {
        found.result.bytes.assign(window + end - 1, 1);
    }
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<UConverter, void (*)(UConverter*)> converter(
        ucnv_open(encoding.c_str(), &status), ucnv_close);
    if (U_FAILURE(status)) {
        return found.result;
    }
    ucnv_setToUCallBack(converter.get(), note_error, &found, nullptr, nullptr, &status);
    std::vector<UChar> sink(1024);
    char const* source = window;
    // Flush: a sequence cut off by the end of the input is reported there too.
    do {
        UChar* target = sink.data();
        status = U_ZERO_ERROR;
        ucnv_toUnicode(converter.get(), &target, sink.data() + sink.size(), &source, window + end,
                       nullptr, true, &status);
    } while (status == U_BUFFER_OVERFLOW_ERROR);
    return found.result;
}

}  // namespace ovi18n_tool
