#include <fl/i18n/lcctype/string_compare.hpp>
#include <fl/i18n/lcctype/string_transform.hpp>

#include "i18n/lcctype/ctype_size_limit.hpp"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <cstdint>
#include <vector>

namespace fl {
namespace i18n {
namespace lcctype {

namespace {

// The counted C forms take a size_t that ICU cannot: a too large n answers -1 without calling
// ICU. A plain range test gives the same answers as a checked cast whose failure is caught.
constexpr std::size_t c_count_limit = 0x7FFFFFFF;

void check_sizes(std::size_t a_size, std::size_t b_size) {
    detail::check_ctype_size(b_size);
    detail::check_ctype_size(a_size);
}

std::int32_t as_length(std::size_t size) {
    return static_cast<std::int32_t>(size);
}

int checked_result(int result, UErrorCode error) {
    if (error > U_ZERO_ERROR) {
        fl::detail::throw_exception(CtypeStrCompFailure());
    }
    return result;
}

int unorm_compare_checked(char16_t const* a, std::size_t a_size, char16_t const* b,
                          std::size_t b_size, std::uint32_t options) {
    check_sizes(a_size, b_size);
    UErrorCode error = U_ZERO_ERROR;
    int const result = unorm_compare(a, as_length(a_size), b, as_length(b_size), options, &error);
    return checked_result(result, error);
}

// Measure, then fill: exactly one allocation per side.
std::vector<char16_t> nfkd_of(char16_t const* text, std::size_t size) {
    std::vector<char16_t> form;
    std::size_t const needed = transform(nullptr, 0, text, size, to_nfkd());
    if (needed != 0) {
        form.resize(needed);
        transform(form.data(), form.size(), text, size, to_nfkd());
    }
    return form;
}

// An empty form goes on as a null pointer, which ICU answers in its own way.
char16_t const* data_or_null(std::vector<char16_t> const& form) {
    return form.empty() ? nullptr : form.data();
}

}  // namespace

int strcmp(char16_t const* a, char16_t const* b) {
    return u_strcmp(a, b);
}

int strncmp(char16_t const* a, char16_t const* b, std::size_t n) {
    if (n > c_count_limit) {
        return -1;
    }
    return u_strncmp(a, b, as_length(n));
}

int strcasecmp(char16_t const* a, char16_t const* b) {
    return u_strcasecmp(a, b, 0);
}

int strncasecmp(char16_t const* a, char16_t const* b, std::size_t n) {
    if (n > c_count_limit) {
        return -1;
    }
    return u_strncasecmp(a, b, as_length(n), 0);
}

int compare(char16_t const* a, std::size_t a_size, char16_t const* b, std::size_t b_size,
            case_sensitive /*tag*/) {
    check_sizes(a_size, b_size);
    return u_strCompare(a, as_length(a_size), b, as_length(b_size), false);
}

int compare(char16_t const* a, std::size_t a_size, char16_t const* b, std::size_t b_size,
            case_insensitive /*tag*/) {
    check_sizes(a_size, b_size);
    UErrorCode error = U_ZERO_ERROR;
    int const result =
        u_strCaseCompare(a, as_length(a_size), b, as_length(b_size), U_FOLD_CASE_DEFAULT, &error);
    return checked_result(result, error);
}

int compare(char16_t const* a, std::size_t a_size, char16_t const* b, std::size_t b_size,
            normalized_case_sensitive /*tag*/) {
    return unorm_compare_checked(a, a_size, b, b_size, 0);
}

int compare(char16_t const* a, std::size_t a_size, char16_t const* b, std::size_t b_size,
            normalized_case_insensitive /*tag*/) {
    return unorm_compare_checked(a, a_size, b, b_size, U_COMPARE_IGNORE_CASE);
}

int compare(char16_t const* a, std::size_t a_size, char16_t const* b, std::size_t b_size,
            normalized_compatibility_case_sensitive /*tag*/) {
    std::vector<char16_t> const a_form = nfkd_of(a, a_size);
    std::vector<char16_t> const b_form = nfkd_of(b, b_size);
    check_sizes(a_form.size(), b_form.size());
    return u_strCompare(data_or_null(a_form), as_length(a_form.size()), data_or_null(b_form),
                        as_length(b_form.size()), false);
}

int compare(char16_t const* a, std::size_t a_size, char16_t const* b, std::size_t b_size,
            normalized_compatibility_case_insensitive /*tag*/) {
    std::vector<char16_t> const a_form = nfkd_of(a, a_size);
    std::vector<char16_t> const b_form = nfkd_of(b, b_size);
    return unorm_compare_checked(data_or_null(a_form), a_form.size(), data_or_null(b_form),
                                 b_form.size(), U_COMPARE_IGNORE_CASE);
}

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl
