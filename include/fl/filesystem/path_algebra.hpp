#ifndef FL_FILESYSTEM_PATH_ALGEBRA_HPP
#define FL_FILESYSTEM_PATH_ALGEBRA_HPP

#include <fl/filesystem/pathname_element_context.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// Path names are taken apart and put together as plain text; nothing here touches the file
// system. Each operation exists for UTF-16 path names and, with the same grammar, for the bytes
// of narrow native paths. The only outside things consulted are HOME and the user database, for
// a leading tilde.

// Generic and native separators are the same here, so the generic form is a copy.
FL_I18N_API fl::i18n::ustring make_generic_form(fl::i18n::ustring const& text);
FL_I18N_API std::string make_generic_form(std::string const& text);
// Bytes that are already in the file system encoding are their own access form.
FL_I18N_API std::string make_access_form(std::string const& text);

// Optional tilde expansion, runs of separators collapsed to one, one trailing separator removed
// (a lone "/" stays). Dot elements are kept: there is no lexical resolution.
FL_I18N_API fl::i18n::ustring make_native_form(fl::i18n::ustring const& text, bool expand_tilde);
FL_I18N_API std::string make_native_form(std::string const& text, bool expand_tilde);

// A path is absolute exactly when it starts with "/"; there are no root names on this platform.
FL_I18N_API bool is_absolute(fl::i18n::ustring const& text);
FL_I18N_API bool is_absolute(std::string const& text);
FL_I18N_API unsigned long get_root_path_length(fl::i18n::ustring const& text);
FL_I18N_API unsigned long get_root_path_length(std::string const& text);
FL_I18N_API fl::i18n::ustring extract_root_name(fl::i18n::ustring const& text);
FL_I18N_API std::string extract_root_name(std::string const& text);
FL_I18N_API fl::i18n::ustring extract_root_directory(fl::i18n::ustring const& text);
FL_I18N_API std::string extract_root_directory(std::string const& text);
FL_I18N_API fl::i18n::ustring extract_root_path(fl::i18n::ustring const& text);
FL_I18N_API std::string extract_root_path(std::string const& text);
FL_I18N_API fl::i18n::ustring extract_relative_path(fl::i18n::ustring const& text);
FL_I18N_API std::string extract_relative_path(std::string const& text);

// The parent of "/a" is "/"; the root has no parent.
FL_I18N_API fl::i18n::ustring extract_parent_path(fl::i18n::ustring const& text);
FL_I18N_API std::string extract_parent_path(std::string const& text);
// The filename of "/" is "/"; that of a text ending in "/" is empty.
FL_I18N_API fl::i18n::ustring extract_filename(fl::i18n::ustring const& text);
FL_I18N_API std::string extract_filename(std::string const& text);
// "a." has stem "a" and no extension; ".profile" has an empty stem and extension "profile".
FL_I18N_API fl::i18n::ustring extract_stem(fl::i18n::ustring const& text);
FL_I18N_API std::string extract_stem(std::string const& text);
FL_I18N_API fl::i18n::ustring extract_extension(fl::i18n::ustring const& text);
FL_I18N_API std::string extract_extension(std::string const& text);

// All four pieces in one pass. Not the composition of the single extractors: here "a." keeps
// the dot in its stem, and "/" has stem "/".
FL_I18N_API pathname_element_context<char16_t> extract_pathname_elements(
    fl::i18n::ustring const& text);
FL_I18N_API pathname_element_context<char> extract_pathname_elements(std::string const& text);

// The element cursor over a native path: begin is position 0 with the first element, end is
// the text's length with an empty element.
FL_I18N_API fl::i18n::ustring extract_first_element(fl::i18n::ustring const& text,
                                                    unsigned long root_length);
FL_I18N_API std::string extract_first_element(std::string const& text, unsigned long root_length);
FL_I18N_API void move_down(fl::i18n::ustring const& text, unsigned long root_length,
                           unsigned long& position, fl::i18n::ustring& element);
FL_I18N_API void move_down(std::string const& text, unsigned long root_length,
                           unsigned long& position, std::string& element);
FL_I18N_API void move_up(fl::i18n::ustring const& text, unsigned long root_length,
                         unsigned long& position, fl::i18n::ustring& element);
FL_I18N_API void move_up(std::string const& text, unsigned long root_length,
                         unsigned long& position, std::string& element);

// Editing in place. Removing the filename of "/" gives the empty path.
FL_I18N_API fl::i18n::ustring& remove_filename(fl::i18n::ustring& text);
FL_I18N_API std::string& remove_filename(std::string& text);
// An empty extension changes nothing; "txt" and ".txt" are the same request. A trailing dot is
// not an extension, so "a." becomes "a..txt". Throws InvalidArgument for "..txt", "." or "a/b".
FL_I18N_API fl::i18n::ustring& replace_extension(fl::i18n::ustring& text,
                                                 fl::i18n::ustring const& extension);
FL_I18N_API std::string& replace_extension(std::string& text, std::string const& extension);
// Appends the native form of the right-hand text behind one separator. An absolute right-hand
// side can't be appended to a non-empty base: InvalidArgument, with the base unchanged.
FL_I18N_API fl::i18n::ustring& concatenate_pathname(fl::i18n::ustring& base,
                                                    fl::i18n::ustring const& text,
                                                    bool expand_tilde);
FL_I18N_API std::string& concatenate_pathname(std::string& base, std::string const& text,
                                              bool expand_tilde);

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
