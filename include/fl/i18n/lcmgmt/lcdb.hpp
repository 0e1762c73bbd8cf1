#ifndef FL_I18N_LCMGMT_LCDB_HPP
#define FL_I18N_LCMGMT_LCDB_HPP

#include <fl/i18n/export.hpp>

namespace fl {
namespace i18n {
namespace lcmgmt {

// The locale and encoding database: built-in tables, extended by lcdata.xml at start-up.
class FL_I18N_API Lcdb {
public:
    Lcdb();
    ~Lcdb();
    Lcdb(Lcdb const&) = delete;
    Lcdb& operator=(Lcdb const&) = delete;
};

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
