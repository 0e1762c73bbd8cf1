#include <fl/filesystem/path_algebra.hpp>

#include <fl/filesystem/fsys_exception.hpp>

#include "common/throw_exception.hpp"
#include "filesystem/path_grammar.hpp"

namespace fl {
namespace filesystem {
namespace detail {
namespace {

template <class CharT>
std::basic_string<CharT>& without_filename(std::basic_string<CharT>& text) {
    if (text.empty()) {
        return text;
    }
    auto const p = text.rfind(grammar::units<CharT>::separator);
    if (p == std::basic_string<CharT>::npos || text.size() == 1) {
        text.clear();
    } else {
        text.resize(p == 0 ? 1 : p);
    }
    return text;
}

// "txt" and ".txt" are extensions; "..txt", dots alone and anything with a separator are not.
template <class CharT>
std::size_t checked_leading_dots(std::basic_string<CharT> const& extension) {
    std::size_t dots = 0;
    while (dots < extension.size() && extension[dots] == grammar::units<CharT>::dot) {
        ++dots;
    }
    if (dots == extension.size() || dots > 1 ||
        extension.find(grammar::units<CharT>::separator) != std::basic_string<CharT>::npos) {
        fl::detail::throw_exception(InvalidArgument());
    }
    return dots;
}

template <class CharT>
std::basic_string<CharT>& with_extension(std::basic_string<CharT>& text,
                                         std::basic_string<CharT> const& extension) {
    CharT const separator = grammar::units<CharT>::separator;
    CharT const dot = grammar::units<CharT>::dot;
    if (text.empty() || extension.empty() || text.back() == separator ||
        grammar::is_dot_name(grammar::last_element(text))) {
        return text;
    }
    std::size_t const leading_dots = checked_leading_dots(extension);
    auto const d = text.rfind(dot);
    auto const s = text.rfind(separator);
    // A dot at the very end is not an extension, so it stays and the new one follows it.
    bool const has_extension = d != std::basic_string<CharT>::npos &&
                               (s == std::basic_string<CharT>::npos || d > s) &&
                               d + 1 != text.size();
    std::basic_string<CharT> result = has_extension ? text.substr(0, d + 1) : text;
    if (!has_extension && leading_dots == 0) {
        result.push_back(dot);
    }
    result.append(extension, has_extension ? leading_dots : 0, std::basic_string<CharT>::npos);
    text.swap(result);
    return text;
}

template <class CharT>
std::basic_string<CharT>& concatenated(std::basic_string<CharT>& base,
                                       std::basic_string<CharT> const& text, bool expand_tilde) {
    auto const tail = make_native_form(text, expand_tilde);
    if (!base.empty() && grammar::is_absolute(tail)) {
        fl::detail::throw_exception(InvalidArgument());
    }
    // The separator goes in even for an empty tail, so "a" joined with "" is "a/".
    if (!base.empty() && base.back() != grammar::units<CharT>::separator) {
        base.push_back(grammar::units<CharT>::separator);
    }
    base.append(tail);
    return base;
}

}  // namespace

fl::i18n::ustring& remove_filename(fl::i18n::ustring& text) {
    return without_filename(text);
}

std::string& remove_filename(std::string& text) {
    return without_filename(text);
}

fl::i18n::ustring& replace_extension(fl::i18n::ustring& text, fl::i18n::ustring const& extension) {
    return with_extension(text, extension);
}

std::string& replace_extension(std::string& text, std::string const& extension) {
    return with_extension(text, extension);
}

fl::i18n::ustring& concatenate_pathname(fl::i18n::ustring& base, fl::i18n::ustring const& text,
                                        bool expand_tilde) {
    return concatenated(base, text, expand_tilde);
}

std::string& concatenate_pathname(std::string& base, std::string const& text, bool expand_tilde) {
    return concatenated(base, text, expand_tilde);
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
