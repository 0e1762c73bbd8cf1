#include <fl/filesystem/path_comparison.hpp>

#include <fl/filesystem/fsys_exception.hpp>
#include <fl/filesystem/path_algebra.hpp>

#include "common/throw_exception.hpp"
#include "filesystem/operation_arguments.hpp"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>
#include <boost/numeric/conversion/cast.hpp>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>

namespace fl {
namespace filesystem {
namespace {

using fl::i18n::character_handling_mode_context;
using fl::i18n::ustring;

// Plain unsigned unit order; equal prefixes leave the length difference, clamped to int.
int compare_units(ustring const& a, ustring const& b) {
    std::size_t const common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (a[i] != b[i]) {
            return static_cast<std::uint16_t>(a[i]) < static_cast<std::uint16_t>(b[i]) ? -1 : 1;
        }
    }
    long long const difference =
        static_cast<long long>(a.size()) - static_cast<long long>(b.size());
    return static_cast<int>(std::clamp<long long>(difference, INT_MIN, INT_MAX));
}

int compare_absolute(ustring const& a, ustring const& b) {
    if (a.empty() && b.empty()) {
        return 0;
    }
    if (!a.empty() && !detail::is_absolute(a)) {
        fl::detail::throw_exception(InvalidArgument());
    }
    if (b.empty()) {
        return 1;
    }
    if (!detail::is_absolute(b)) {
        fl::detail::throw_exception(InvalidArgument());
    }
    if (a.empty()) {
        return -1;
    }
    return compare_units(a, b);
}

int icu_answer(int result, UErrorCode error) {
    if (error > U_ZERO_ERROR) {
        fl::detail::throw_exception(PathNameComparisonFailure());
    }
    return result;
}

int compare_with_mode(ustring const& a, ustring const& b,
                      character_handling_mode_context const& mode) {
    if (a.empty()) {
        return b.empty() ? 0 : -1;
    }
    if (b.empty()) {
        return 1;
    }
    unsigned int const mask = mode.get_mask();
    if (mask == character_handling_mode_context::default_mode) {
        return compare_units(a, b);
    }
    bool const insensitive = (mask & character_handling_mode_context::insensitive_mode) != 0;
    bool const normalising =
        (mask & character_handling_mode_context::normalized_decompose_mode) != 0;
    if (mask != character_handling_mode_context::insensitive_mode && !normalising) {
        fl::detail::throw_exception(InvalidArgument());
    }
    auto const a_length = boost::numeric_cast<std::int32_t>(a.size());
    auto const b_length = boost::numeric_cast<std::int32_t>(b.size());
    UErrorCode error = U_ZERO_ERROR;
    if (!normalising) {
        int const result = u_strCaseCompare(a.data(), a_length, b.data(), b_length, 0, &error);
        return icu_answer(result, error);
    }
    std::uint32_t const options = insensitive ? U_COMPARE_IGNORE_CASE : 0;
    int const result = unorm_compare(a.data(), a_length, b.data(), b_length, options, &error);
    return icu_answer(result, error);
}

}  // namespace

int compare(ustring const& a, ustring const& b) {
    return compare_absolute(detail::native_text(a), detail::native_text(b));
}

int compare(upath const& a, upath const& b) {
    return compare_absolute(a.pathname(), b.pathname());
}

int compare(ustring const& a, ustring const& b, character_handling_mode_context const& mode) {
    return compare_with_mode(detail::native_text(a), detail::native_text(b), mode);
}

int compare(upath const& a, upath const& b, character_handling_mode_context const& mode) {
    return compare_with_mode(a.pathname(), b.pathname(), mode);
}

}  // namespace filesystem
}  // namespace fl
