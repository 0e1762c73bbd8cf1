#ifndef FL_I18N_CODECVT_CODE_CONVERTER_CONTEXT_HPP
#define FL_I18N_CODECVT_CODE_CONVERTER_CONTEXT_HPP

#include "common/unique_converter.hpp"

#include <atomic>
#include <string>

namespace fl {
namespace i18n {
namespace lcctype {

// A record of the default-converter store: the master, or one thread's copy.
struct code_converter_context {
    explicit code_converter_context(detail::unique_converter owned);
    code_converter_context(code_converter_context const&) = delete;
    code_converter_context& operator=(code_converter_context const&) = delete;
    ~code_converter_context();

    detail::unique_converter converter;
    std::string unused;
    // is_ascii_transparent of the converter, asked once when the master opened.
    bool ascii_transparent = false;

    // Records alive right now, so that the closing of thread copies can be observed.
    static std::atomic<long> alive;
};

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
