#include <fl/filesystem/path_algebra.hpp>

#include "filesystem/path_grammar.hpp"

#include <string_view>

namespace fl {
namespace filesystem {
namespace detail {
namespace {

// Each extractor looks for the last separator from the end and never splits the text.

template <class CharT>
std::basic_string<CharT> root_directory(std::basic_string<CharT> const& text) {
    return grammar::is_absolute(text)
               ? std::basic_string<CharT>(1, grammar::units<CharT>::separator)
               : std::basic_string<CharT>();
}

template <class CharT>
std::basic_string<CharT> relative_path(std::basic_string<CharT> const& text) {
    return grammar::is_absolute(text) ? text.substr(1) : text;
}

template <class CharT>
std::basic_string<CharT> parent_path(std::basic_string<CharT> const& text) {
    auto const p = text.rfind(grammar::units<CharT>::separator);
    if (p == std::basic_string<CharT>::npos) {
        return {};
    }
    if (p == 0) {
        return text.size() > 1 ? text.substr(0, 1) : std::basic_string<CharT>();
    }
    return text.substr(0, p);
}

// Where the filename starts: behind the last separator, or at 0 when there is none or the text
// is the root alone (whose filename is "/").
template <class CharT>
std::size_t filename_start(std::basic_string<CharT> const& text) {
    auto const p = text.rfind(grammar::units<CharT>::separator);
    return (p == std::basic_string<CharT>::npos || text.size() == 1) ? 0 : p + 1;
}

template <class CharT>
std::basic_string<CharT> filename(std::basic_string<CharT> const& text) {
    return text.substr(filename_start(text));
}

// The last dot of the filename that can start an extension; npos for none, and for "." and "..".
// Works in place, so only the piece asked for is ever copied.
template <class CharT>
std::size_t extension_dot(std::basic_string<CharT> const& text, std::size_t start) {
    std::basic_string_view<CharT> const name(text.data() + start, text.size() - start);
    CharT const dot = grammar::units<CharT>::dot;
    if (name.empty() || (name.size() <= 2 && name.find_first_not_of(dot) == name.npos)) {
        return std::basic_string<CharT>::npos;
    }
    auto const d = name.rfind(dot);
    return d == name.npos ? std::basic_string<CharT>::npos : start + d;
}

template <class CharT>
std::basic_string<CharT> stem(std::basic_string<CharT> const& text) {
    std::size_t const start = filename_start(text);
    std::size_t const d = extension_dot(text, start);
    return text.substr(start, d == std::basic_string<CharT>::npos ? d : d - start);
}

template <class CharT>
std::basic_string<CharT> extension(std::basic_string<CharT> const& text) {
    std::size_t const d = extension_dot(text, filename_start(text));
    return d == std::basic_string<CharT>::npos ? std::basic_string<CharT>() : text.substr(d + 1);
}

template <class CharT>
pathname_element_context<CharT> pathname_elements(std::basic_string<CharT> const& text) {
    pathname_element_context<CharT> elements;
    if (text.empty()) {
        return elements;
    }
    auto const p = text.rfind(grammar::units<CharT>::separator);
    if (p == std::basic_string<CharT>::npos) {
        elements.filename = text;
    } else if (p == 0 && text.size() == 1) {
        elements.filename = text;
        elements.stem = text;
        return elements;
    } else if (p == 0) {
        elements.directory = text.substr(0, 1);
        elements.filename = text.substr(1);
    } else {
        elements.directory = text.substr(0, p);
        elements.filename = text.substr(p + 1);
    }
    // Unlike extract_stem, a dot at the very end stays in the stem here.
    auto const d = elements.filename.rfind(grammar::units<CharT>::dot);
    if (d == std::basic_string<CharT>::npos || d + 1 == elements.filename.size()) {
        elements.stem = elements.filename;
    } else {
        elements.stem = elements.filename.substr(0, d);
        elements.extension = elements.filename.substr(d + 1);
    }
    return elements;
}

}  // namespace

bool is_absolute(fl::i18n::ustring const& text) {
    return grammar::is_absolute(text);
}

bool is_absolute(std::string const& text) {
    return grammar::is_absolute(text);
}

unsigned long get_root_path_length(fl::i18n::ustring const& text) {
    return grammar::is_absolute(text) ? 1 : 0;
}

unsigned long get_root_path_length(std::string const& text) {
    return grammar::is_absolute(text) ? 1 : 0;
}

fl::i18n::ustring extract_root_name(fl::i18n::ustring const&) {
    return {};
}

std::string extract_root_name(std::string const&) {
    return {};
}

fl::i18n::ustring extract_root_directory(fl::i18n::ustring const& text) {
    return root_directory(text);
}

std::string extract_root_directory(std::string const& text) {
    return root_directory(text);
}

fl::i18n::ustring extract_root_path(fl::i18n::ustring const& text) {
    return root_directory(text);
}

std::string extract_root_path(std::string const& text) {
    return root_directory(text);
}

fl::i18n::ustring extract_relative_path(fl::i18n::ustring const& text) {
    return relative_path(text);
}

std::string extract_relative_path(std::string const& text) {
    return relative_path(text);
}

fl::i18n::ustring extract_parent_path(fl::i18n::ustring const& text) {
    return parent_path(text);
}

std::string extract_parent_path(std::string const& text) {
    return parent_path(text);
}

fl::i18n::ustring extract_filename(fl::i18n::ustring const& text) {
    return filename(text);
}

std::string extract_filename(std::string const& text) {
    return filename(text);
}

fl::i18n::ustring extract_stem(fl::i18n::ustring const& text) {
    return stem(text);
}

std::string extract_stem(std::string const& text) {
    return stem(text);
}

fl::i18n::ustring extract_extension(fl::i18n::ustring const& text) {
    return extension(text);
}

std::string extract_extension(std::string const& text) {
    return extension(text);
}

pathname_element_context<char16_t> extract_pathname_elements(fl::i18n::ustring const& text) {
    return pathname_elements(text);
}

pathname_element_context<char> extract_pathname_elements(std::string const& text) {
    return pathname_elements(text);
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
