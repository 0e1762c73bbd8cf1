#ifndef FL_FILESYSTEM_BASIC_PATH_HPP
#define FL_FILESYSTEM_BASIC_PATH_HPP

#include <fl/filesystem/path_algebra.hpp>
#include <fl/filesystem/path_traits.hpp>
#include <fl/i18n/export.hpp>

#include <cstddef>
#include <iterator>
#include <utility>

namespace fl {
namespace filesystem {

// A path name in native form: no doubled separator, no trailing separator apart from the root
// itself. The object doesn't know the file system. expand_tilde is a property of the object: it
// applies to every text given to it later, not only to the constructor's.
//
// The members below do nothing beyond the path algebra function of the same name.
template <class AccessChar, class PathChar, class Traits>
class basic_path {
public:
    using traits_type = Traits;
    using value_type = PathChar;
    using string_type = typename Traits::string_type;
    using access_string_type = typename Traits::access_string_type;
    class iterator;
    using const_iterator = iterator;

    basic_path() = default;
    // Non-empty text gets the native form; empty text gives the empty path.
    explicit basic_path(string_type const& pathname, bool expand_tilde = true);
    explicit basic_path(value_type const* pathname, bool expand_tilde = true)
        : basic_path(string_type(pathname), expand_tilde) {}

    // Replaces the pathname by the native form of the text, with the object's own flag.
    void set_path_name(string_type const& name);

    string_type const& pathname() const noexcept { return pathname_; }
    bool expand_tilde() const noexcept { return expand_tilde_; }
    bool empty() const noexcept { return pathname_.empty(); }
    void clear() noexcept { pathname_.clear(); }
    void swap(basic_path& other) noexcept {
        pathname_.swap(other.pathname_);
        std::swap(expand_tilde_, other.expand_tilde_);
    }

    string_type generic_form() const { return detail::make_generic_form(pathname_); }
    access_string_type access_form() const { return Traits::access_form(pathname_); }

    // Appends one element behind a separator; an absolute text can't be appended to a
    // non-empty path (InvalidArgument). The text gets the object's tilde flag.
    basic_path& operator/=(string_type const& text) {
        detail::concatenate_pathname(pathname_, text, expand_tilde_);
        return *this;
    }
    basic_path& operator/=(value_type const* text) { return *this /= string_type(text); }
    basic_path& operator/=(basic_path const& other) { return *this /= other.pathname_; }

    bool is_absolute() const { return detail::is_absolute(pathname_); }
    unsigned long root_path_length() const { return detail::get_root_path_length(pathname_); }
    string_type root_name() const { return detail::extract_root_name(pathname_); }
    string_type root_directory() const { return detail::extract_root_directory(pathname_); }
    string_type root_path() const { return detail::extract_root_path(pathname_); }
    basic_path relative_path() const {
        return adopt(detail::extract_relative_path(pathname_), expand_tilde_);
    }
    basic_path parent_path() const {
        return adopt(detail::extract_parent_path(pathname_), expand_tilde_);
    }
    string_type filename() const { return detail::extract_filename(pathname_); }
    string_type stem() const { return detail::extract_stem(pathname_); }
    string_type extension() const { return detail::extract_extension(pathname_); }
    detail::pathname_element_context<PathChar> pathname_elements() const {
        return detail::extract_pathname_elements(pathname_);
    }
    string_type first_element() const {
        return detail::extract_first_element(pathname_, root_path_length());
    }

    basic_path& remove_filename() {
        detail::remove_filename(pathname_);
        return *this;
    }
    basic_path& replace_extension(string_type const& extension) {
        detail::replace_extension(pathname_, extension);
        return *this;
    }

    iterator begin() const { return iterator(this, 0, first_element()); }
    iterator end() const { return iterator(this, pathname_.size(), string_type()); }

    // The elements: "/" for the root, then each name between separators.
    class iterator {
    public:
        using iterator_category = std::bidirectional_iterator_tag;
        using value_type = string_type;
        using difference_type = std::ptrdiff_t;
        using pointer = string_type const*;
        using reference = string_type const&;

        iterator() = default;

        reference operator*() const noexcept { return element_; }
        pointer operator->() const noexcept { return &element_; }
        unsigned long position() const noexcept { return position_; }

        iterator& operator++() {
            detail::move_down(path_->pathname_, path_->root_path_length(), position_, element_);
            return *this;
        }
        iterator operator++(int) {
            iterator before = *this;
            ++*this;
            return before;
        }
        iterator& operator--() {
            detail::move_up(path_->pathname_, path_->root_path_length(), position_, element_);
            return *this;
        }
        iterator operator--(int) {
            iterator before = *this;
            --*this;
            return before;
        }

        friend bool operator==(iterator const& a, iterator const& b) noexcept {
            return a.path_ == b.path_ && a.position_ == b.position_;
        }
        friend bool operator!=(iterator const& a, iterator const& b) noexcept { return !(a == b); }

    private:
        friend class basic_path;
        iterator(basic_path const* path, unsigned long position, string_type element)
            : path_(path), position_(position), element_(std::move(element)) {}

        basic_path const* path_ = nullptr;
        unsigned long position_ = 0;
        string_type element_;
    };

    // Textual equality of the native forms; the file system is not asked.
    friend bool operator==(basic_path const& a, basic_path const& b) {
        return a.pathname_ == b.pathname_;
    }
    friend bool operator!=(basic_path const& a, basic_path const& b) { return !(a == b); }

private:
    // Pieces of a native path are native already and are taken as they are.
    static basic_path adopt(string_type text, bool expand_tilde) {
        basic_path path;
        path.pathname_ = std::move(text);
        path.expand_tilde_ = expand_tilde;
        return path;
    }

    string_type pathname_;
    bool expand_tilde_ = true;
};

template <class AccessChar, class PathChar, class Traits>
basic_path<AccessChar, PathChar, Traits>::basic_path(string_type const& pathname, bool expand_tilde)
    : expand_tilde_(expand_tilde) {
    set_path_name(pathname);
}

template <class AccessChar, class PathChar, class Traits>
void basic_path<AccessChar, PathChar, Traits>::set_path_name(string_type const& name) {
    if (name.empty()) {
        pathname_.clear();
    } else {
        pathname_ = detail::make_native_form(name, expand_tilde_);
    }
}

// Path names in UTF-16: the type of every public interface of the filesystem layer.
using upath = basic_path<char, char16_t, detail::path_traits<char, char16_t>>;
// Path names as bytes in the file system encoding, for work before converters exist.
using native_path = basic_path<char, char, detail::native_path_traits<char, char>>;

extern template class FL_I18N_API basic_path<char, char16_t, detail::path_traits<char, char16_t>>;
extern template class FL_I18N_API basic_path<char, char, detail::native_path_traits<char, char>>;

}  // namespace filesystem
}  // namespace fl

#endif
