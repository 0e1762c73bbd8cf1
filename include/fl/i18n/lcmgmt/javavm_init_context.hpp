#ifndef FL_I18N_LCMGMT_JAVAVM_INIT_CONTEXT_HPP
#define FL_I18N_LCMGMT_JAVAVM_INIT_CONTEXT_HPP

#include <fl/i18n/export.hpp>

#include <string>

namespace fl {
namespace i18n {

// What a Java VM started by the host must be told, since the VM would otherwise read the
// rewritten environment. The optional pairs are empty when the VM's own defaults already agree.
struct javavm_init_context {
    std::string language;
    std::string region;
    std::string resource_language;
    std::string resource_region;
    std::string format_language;
    std::string format_region;
    std::string file_encoding;
};

FL_I18N_API javavm_init_context get_javavm_init_context();

}  // namespace i18n
}  // namespace fl

#endif
