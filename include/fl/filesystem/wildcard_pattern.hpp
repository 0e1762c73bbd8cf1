#ifndef FL_FILESYSTEM_WILDCARD_PATTERN_HPP
#define FL_FILESYSTEM_WILDCARD_PATTERN_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

namespace fl {
namespace filesystem {

// A file name pattern for directory iteration: the text as the user wrote it and the regular
// expression it stands for.
class FL_I18N_API pattern_string_context {
public:
    virtual ~pattern_string_context() = 0;

    fl::i18n::ustring filename;
    fl::i18n::ustring pattern;
};

namespace detail {

// Selects the wildcard grammar below; it carries nothing.
class velmor_pattern_string_generator {};

// The regular expression for a file name in which only "*" is a wildcard: any run of stars
// matches any text, carriage returns included; every other character stands for itself, in
// exact case. "." and ".." match every name. An empty text gives an empty text.
FL_I18N_API fl::i18n::ustring generate_pattern_from_filename(
    fl::i18n::ustring const& filename, velmor_pattern_string_generator const& generator);

}  // namespace detail

// The usual pattern: a file name with "*" wildcards.
class wildcard_pattern_string_context : public pattern_string_context {
public:
    explicit wildcard_pattern_string_context(fl::i18n::ustring const& wildcards) {
        filename = wildcards;
        pattern = detail::generate_pattern_from_filename(wildcards,
                                                         detail::velmor_pattern_string_generator());
    }
};

}  // namespace filesystem
}  // namespace fl

#endif
