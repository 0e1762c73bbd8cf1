#include <fl/i18n/lcmgmt/javavm_init_context.hpp>
#include <fl/i18n/lcmgmt/manager.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <boost/variant/get.hpp>

namespace fl {
namespace i18n {

javavm_init_context get_javavm_init_context() {
    OvLocale const& system = OvLocale::system();
    OvLocale const& global = OvLocale::global();
    javavm_init_context context;
    context.language = system.getLanguage(OvLocale::messages);
    context.region = system.getRegion(OvLocale::messages);
    std::string const format_language = global.getLanguage(OvLocale::ctype);
    std::string const format_region = global.getRegion(OvLocale::ctype);

    bool const enabled = get_l10n_resource_status();
    // With resources disabled the VM's messages are English, so its formats must be named too.
    bool const same =
        format_language == context.language && format_region == context.region && enabled;

    if (!enabled) {
        OvLocale const& classic = OvLocale::classic();
        context.resource_language = classic.getLanguage(OvLocale::messages);
        context.resource_region = classic.getRegion(OvLocale::messages);
    }
    if (!same) {
        context.format_language = format_language;
        context.format_region = format_region;
    }
    context.file_encoding = boost::get<std::string>(global.getOptData(OvLcOptDataCtx::jvmencoding));
    return context;
}

}  // namespace i18n
}  // namespace fl
