#include <fl/i18n/codecvt/codecvt_string_to_ustring.hpp>
#include <fl/i18n/codecvt/codecvt_terminal.hpp>
#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <boost/variant/get.hpp>

#include <string>

namespace fl {
namespace i18n {
namespace {

// Asked on every call, not cached: the global locale may change between two converters.
std::string terminal_encoding(OvLcOptDataCtx::LcOptDataType type) {
    return boost::get<std::string>(OvLocale::global().getOptData(type));
}

}  // namespace

std::unique_ptr<converter<char16_t, char>> create_codecvt_terminal_to_ustring() {
    return std::make_unique<codecvt_string_to_ustring>(
        terminal_encoding(OvLcOptDataCtx::termencoding), true);
}

std::unique_ptr<converter<char, char16_t>> create_codecvt_ustring_to_terminal() {
    return std::make_unique<codecvt_ustring_to_string>(
        terminal_encoding(OvLcOptDataCtx::termencoding), true);
}

std::unique_ptr<converter<char16_t, char>> create_codecvt_terminal_input_to_ustring() {
    return std::make_unique<codecvt_string_to_ustring>(
        terminal_encoding(OvLcOptDataCtx::terminputencoding), true);
}

std::unique_ptr<converter<char, char16_t>> create_codecvt_ustring_to_terminal_output() {
    return std::make_unique<codecvt_ustring_to_string>(
        terminal_encoding(OvLcOptDataCtx::termoutputencoding), true);
}

}  // namespace i18n
}  // namespace fl
