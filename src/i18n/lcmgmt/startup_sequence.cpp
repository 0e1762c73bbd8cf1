#include "i18n/lcmgmt/manager_context.hpp"

namespace fl {
namespace i18n {
namespace lcmgmt {

void run_startup_sequence(manager_context& /*context*/) {}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
