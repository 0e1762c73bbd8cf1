#include <fl/i18n/lcmgmt/ov_locale_impl.hpp>

#include <fl/i18n/lcmgmt/locale_name.hpp>
#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/lcmgmt/optional_locale_data.hpp"

#include <cstring>
#include <type_traits>

namespace fl {
namespace i18n {

OvLocaleImpl::OvLocaleImpl(lcmgmt::Lcdb const* database) : database_(database) {}

OvLocaleImpl::OvLocaleImpl(lcmgmt::Lcdb const* database, OvLocale const& source)
    : database_(database) {
    for (int c = 0; c < category_count; ++c) {
        auto const category = static_cast<LcCategory>(c);
        std::string modifier = source.getModifier(category);
        // getModifier gives "@mod"; the stored form is without the marker.
        if (!modifier.empty() && modifier[0] == '@') {
            modifier.erase(0, 1);
        }
        set_category(source.getLocaleName(category), modifier, category);
    }
    encoding_ = source.getEncoding();
    terminal_encoding_ = boost::get<std::string>(source.getOptData(OvLcOptDataCtx::termencoding));
}

OvLocaleImpl::~OvLocaleImpl() = default;

OvLocaleImpl::category_entry const& OvLocaleImpl::entry(LcCategory category) const {
    if (category < 0 || category >= category_count) {
        detail::throw_exception(OvLcDataNotFound());
    }
    return categories_[category];
}

void OvLocaleImpl::set_category(std::string const& name, std::string const& modifier,
                                LcCategory category) {
    if (category < 0 || category >= category_count) {
        detail::throw_exception(OvLcDataNotFound());
    }
    categories_[category].name =
        (category == messages && name == "en_US_POSIX") ? std::string("en_US") : name;
    categories_[category].modifier = modifier;
}

bool OvLocaleImpl::operator==(OvLocale const& other) const {
    for (int c = 0; c < category_count; ++c) {
        auto const category = static_cast<LcCategory>(c);
        if (getLocaleName(category) != other.getLocaleName(category) ||
            getModifier(category) != other.getModifier(category)) {
            return false;
        }
    }
    return getEncoding() == other.getEncoding();
}

bool OvLocaleImpl::operator!=(OvLocale const& other) const {
    return !(*this == other);
}

std::string OvLocaleImpl::getLocaleName(LcCategory category) const {
    return entry(category).name;
}

std::string OvLocaleImpl::getLanguage(LcCategory category) const {
    return lcmgmt::parse_locale_name(entry(category).name).language_and_script();
}

std::string OvLocaleImpl::getRegion(LcCategory category) const {
    return lcmgmt::parse_locale_name(entry(category).name).region;
}

std::string OvLocaleImpl::getModifier(LcCategory category) const {
    std::string const& modifier = entry(category).modifier;
    return modifier.empty() ? modifier : "@" + modifier;
}

std::string OvLocaleImpl::getEncoding() const {
    return encoding_;
}

OvLcOptDataCtx::value_type OvLocaleImpl::getOptData(OvLcOptDataCtx::LcOptDataType type) const {
    // Callers in other modules pass plain integers, and a value outside the enumeration's range
    // may not even be read as the enumeration: take its bytes as the integer they hold.
    std::underlying_type_t<OvLcOptDataCtx::LcOptDataType> value;
    static_assert(sizeof value == sizeof type, "the enumeration is its underlying integer");
    std::memcpy(&value, &type, sizeof value);
    switch (value) {
        case OvLcOptDataCtx::jvmencoding:
            return lcmgmt::jvm_encoding_name(database_, encoding_);
        case OvLcOptDataCtx::terminputencoding:
            if (!lcmgmt::terminal_input_follows_output()) {
                return encoding_;
            }
            [[fallthrough]];
        case OvLcOptDataCtx::termencoding:
        case OvLcOptDataCtx::termoutputencoding:
            return terminal_encoding_.empty() ? encoding_ : terminal_encoding_;
        case OvLcOptDataCtx::papersize:
            return lcmgmt::paper_size_of(entry(time).name);
        case OvLcOptDataCtx::unittype:
            return lcmgmt::unit_type_of(entry(time).name);
    }
    detail::throw_exception(OvLcInvLcArgument());
}

}  // namespace i18n
}  // namespace fl
