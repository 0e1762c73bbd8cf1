#include <fl/i18n/lcmgmt/ov_locale_impl.hpp>

#include <fl/i18n/lcmgmt/locale_name.hpp>
#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/lcmgmt/optional_locale_data.hpp"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <type_traits>

namespace fl {
namespace i18n {

struct OvLocaleImpl::data {
    struct category_entry {
        std::string name;
        std::string modifier;
    };

    lcmgmt::Lcdb const* database = nullptr;
    category_entry categories[category_count];
    std::string encoding;
    std::string terminal_encoding;
    // What publish() replaced: kept, and kept reachable, since a reader may still be in it.
    data const* replaced = nullptr;
};

namespace {

void check_category(OvLocale::LcCategory category) {
    if (category < 0 || category >= OvLocaleImpl::category_count) {
        detail::throw_exception(OvLcDataNotFound());
    }
}

}  // namespace

OvLocaleImpl::OvLocaleImpl(lcmgmt::Lcdb const* database) : data_(new data) {
    building().database = database;
}

OvLocaleImpl::OvLocaleImpl(lcmgmt::Lcdb const* database, OvLocale const& source) : data_(new data) {
    data& mine = building();
    mine.database = database;
    if (auto const* impl = dynamic_cast<OvLocaleImpl const*>(&source)) {
        // One load of the source's data, so a copy made while start-up publishes is never half
        // old and half new; it gives what the virtual reads below give, since the stored
        // messages name never is "en_US_POSIX".
        data const& theirs = impl->current();
        std::copy(std::begin(theirs.categories), std::end(theirs.categories),
                  std::begin(mine.categories));
        mine.encoding = theirs.encoding;
        mine.terminal_encoding =
            theirs.terminal_encoding.empty() ? theirs.encoding : theirs.terminal_encoding;
        return;
    }
    for (int c = 0; c < category_count; ++c) {
        auto const category = static_cast<LcCategory>(c);
        std::string modifier = source.getModifier(category);
        // getModifier gives "@mod"; the stored form is without the marker.
        if (!modifier.empty() && modifier[0] == '@') {
            modifier.erase(0, 1);
        }
        set_category(source.getLocaleName(category), modifier, category);
    }
    mine.encoding = source.getEncoding();
    mine.terminal_encoding =
        boost::get<std::string>(source.getOptData(OvLcOptDataCtx::termencoding));
}

// Nobody may read a locale while it is destroyed, so what publish() replaced goes too. The
// manager's locales, the ones published while others read, are never destroyed.
OvLocaleImpl::~OvLocaleImpl() {
    data const* d = data_.load(std::memory_order_relaxed);
    while (d != nullptr) {
        data const* const next = d->replaced;
        delete d;
        d = next;
    }
}

OvLocaleImpl::data const& OvLocaleImpl::current() const noexcept {
    return *data_.load(std::memory_order_acquire);
}

OvLocaleImpl::data& OvLocaleImpl::building() noexcept {
    return *const_cast<data*>(data_.load(std::memory_order_relaxed));
}

void OvLocaleImpl::publish(OvLocaleImpl const& source) {
    auto* fresh = new data(source.current());
    fresh->replaced = data_.load(std::memory_order_relaxed);
    data_.store(fresh, std::memory_order_release);
}

lcmgmt::Lcdb const* OvLocaleImpl::database() const noexcept {
    return current().database;
}

std::string const& OvLocaleImpl::terminal_encoding() const noexcept {
    return current().terminal_encoding;
}

void OvLocaleImpl::set_category(std::string const& name, std::string const& modifier,
                                LcCategory category) {
    check_category(category);
    data::category_entry& entry = building().categories[category];
    entry.name = (category == messages && name == "en_US_POSIX") ? std::string("en_US") : name;
    entry.modifier = modifier;
}

void OvLocaleImpl::set_encoding(std::string const& encoding) {
    building().encoding = encoding;
}

void OvLocaleImpl::set_terminal_encoding(std::string const& encoding) {
    building().terminal_encoding = encoding;
}

// One load of each side's data, so a comparison made while start-up publishes sees one state
// per side. The stored fields compare as the accessors would: a modifier gets its "@" the same
// way on both sides.
bool OvLocaleImpl::operator==(OvLocale const& other) const {
    data const& mine = current();
    if (auto const* impl = dynamic_cast<OvLocaleImpl const*>(&other)) {
        data const& theirs = impl->current();
        for (int c = 0; c < category_count; ++c) {
            if (mine.categories[c].name != theirs.categories[c].name ||
                mine.categories[c].modifier != theirs.categories[c].modifier) {
                return false;
            }
        }
        return mine.encoding == theirs.encoding;
    }
    for (int c = 0; c < category_count; ++c) {
        auto const category = static_cast<LcCategory>(c);
        std::string const& modifier = mine.categories[c].modifier;
        if (mine.categories[c].name != other.getLocaleName(category) ||
            (modifier.empty() ? modifier : "@" + modifier) != other.getModifier(category)) {
            return false;
        }
    }
    return mine.encoding == other.getEncoding();
}

bool OvLocaleImpl::operator!=(OvLocale const& other) const {
    return !(*this == other);
}

std::string OvLocaleImpl::getLocaleName(LcCategory category) const {
    check_category(category);
    return current().categories[category].name;
}

std::string OvLocaleImpl::getLanguage(LcCategory category) const {
    return lcmgmt::parse_locale_name(getLocaleName(category)).language_and_script();
}

std::string OvLocaleImpl::getRegion(LcCategory category) const {
    return lcmgmt::parse_locale_name(getLocaleName(category)).region;
}

std::string OvLocaleImpl::getModifier(LcCategory category) const {
    check_category(category);
    std::string const& modifier = current().categories[category].modifier;
    return modifier.empty() ? modifier : "@" + modifier;
}

std::string OvLocaleImpl::getEncoding() const {
    return current().encoding;
}

OvLcOptDataCtx::value_type OvLocaleImpl::getOptData(OvLcOptDataCtx::LcOptDataType type) const {
    data const& now = current();
    // Callers in other modules pass plain integers, and a value outside the enumeration's range
    // may not even be read as the enumeration: take its bytes as the integer they hold.
    std::underlying_type_t<OvLcOptDataCtx::LcOptDataType> value;
    static_assert(sizeof value == sizeof type, "the enumeration is its underlying integer");
    std::memcpy(&value, &type, sizeof value);
    switch (value) {
        case OvLcOptDataCtx::jvmencoding:
            return lcmgmt::jvm_encoding_name(now.database, now.encoding);
        case OvLcOptDataCtx::terminputencoding:
            if (!lcmgmt::terminal_input_follows_output()) {
                return now.encoding;
            }
            [[fallthrough]];
        case OvLcOptDataCtx::termencoding:
        case OvLcOptDataCtx::termoutputencoding:
            return now.terminal_encoding.empty() ? now.encoding : now.terminal_encoding;
        case OvLcOptDataCtx::papersize:
            return lcmgmt::paper_size_of(now.categories[time].name);
        case OvLcOptDataCtx::unittype:
            return lcmgmt::unit_type_of(now.categories[time].name);
    }
    detail::throw_exception(OvLcInvLcArgument());
}

}  // namespace i18n
}  // namespace fl
