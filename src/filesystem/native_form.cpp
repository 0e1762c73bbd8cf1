#include <fl/filesystem/path_algebra.hpp>

#include "filesystem/path_grammar.hpp"
#include "filesystem/tilde_expansion.hpp"

namespace fl {
namespace filesystem {
namespace detail {
namespace {

// One pass with one buffer of the input's length: a separator is copied only when the unit
// before it wasn't one, then one trailing separator goes unless it is the whole path.
template <class CharT>
std::basic_string<CharT> collapse_separators(std::basic_string<CharT> const& text) {
    std::basic_string<CharT> result(text.size(), CharT());
    std::size_t length = 0;
    bool previous_was_separator = false;
    for (CharT const c : text) {
        bool const separator = grammar::is_separator(c);
        if (!(separator && previous_was_separator)) {
            result[length++] = c;
        }
        previous_was_separator = separator;
    }
    if (length > 1 && grammar::is_separator(result[length - 1])) {
        --length;
    }
    result.resize(length);
    return result;
}

template <class CharT>
std::basic_string<CharT> native_form(std::basic_string<CharT> const& text, bool expand) {
    if (text.empty()) {
        return text;
    }
    if (expand && text[0] == grammar::units<CharT>::tilde) {
        return collapse_separators(expand_tilde(text));
    }
    return collapse_separators(text);
}

}  // namespace

fl::i18n::ustring make_generic_form(fl::i18n::ustring const& text) {
    return text;
}

std::string make_generic_form(std::string const& text) {
    return text;
}

std::string make_access_form(std::string const& text) {
    return text;
}

fl::i18n::ustring make_native_form(fl::i18n::ustring const& text, bool expand_tilde) {
    return native_form(text, expand_tilde);
}

std::string make_native_form(std::string const& text, bool expand_tilde) {
    return native_form(text, expand_tilde);
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
