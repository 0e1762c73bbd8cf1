#include <fl/i18n/lcmgmt/lcdb.hpp>

namespace fl {
namespace i18n {
namespace lcmgmt {

Lcdb::Lcdb() = default;
Lcdb::~Lcdb() = default;

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
