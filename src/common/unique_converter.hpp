#ifndef FL_COMMON_UNIQUE_CONVERTER_HPP
#define FL_COMMON_UNIQUE_CONVERTER_HPP

#include <unicode/ucnv.h>

#include <memory>

namespace fl {
namespace i18n {
namespace detail {

struct converter_closer {
    void operator()(UConverter* converter) const noexcept { ucnv_close(converter); }
};

// Sole owner of an ICU converter: closed on every path, exceptions included.
using unique_converter = std::unique_ptr<UConverter, converter_closer>;

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
