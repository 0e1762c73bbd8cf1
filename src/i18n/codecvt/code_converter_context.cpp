#include "i18n/codecvt/code_converter_context.hpp"

#include <utility>

namespace fl {
namespace i18n {
namespace lcctype {

std::atomic<long> code_converter_context::alive{0};

code_converter_context::code_converter_context(detail::unique_converter owned)
    : converter(std::move(owned)) {
    alive.fetch_add(1, std::memory_order_relaxed);
}

code_converter_context::~code_converter_context() {
    alive.fetch_sub(1, std::memory_order_relaxed);
}

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl
