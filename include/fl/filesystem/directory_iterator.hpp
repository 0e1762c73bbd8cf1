#ifndef FL_FILESYSTEM_DIRECTORY_ITERATOR_HPP
#define FL_FILESYSTEM_DIRECTORY_ITERATOR_HPP

#include <fl/filesystem/basic_path.hpp>
#include <fl/filesystem/path_algebra.hpp>
#include <fl/filesystem/upath_directory_entry.hpp>
#include <fl/filesystem/wildcard_pattern.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <iterator>
#include <memory>

namespace fl {
namespace filesystem {
namespace detail {

class directory_entry_context;

// Accepted for the sake of callers on other platforms; it changes nothing here.
enum initialization_mode : unsigned int { default_initialization = 0 };

// One open directory and the entry it stands on. Construction opens the directory (failures
// throw, there is no half-open state) and reads the first entry; is_open turns false once the
// entries are exhausted, and the entry then keeps the last one read.
class FL_I18N_API upath_directory_iterator_impl {
public:
    upath_directory_iterator_impl(fl::i18n::ustring const& directory, initialization_mode mode);
    // Empty filename or pattern, or a "/" in the filename, throws InvalidArgument before anything
    // opens; a pattern that doesn't compile throws InvalidArgument unless tolerated, and then
    // matches nothing. Matching is exact in case and never normalised.
    upath_directory_iterator_impl(fl::i18n::ustring const& directory,
                                  pattern_string_context const& pattern, bool tolerate_bad_pattern,
                                  initialization_mode mode);
    ~upath_directory_iterator_impl();
    upath_directory_iterator_impl(upath_directory_iterator_impl const&) = delete;
    upath_directory_iterator_impl& operator=(upath_directory_iterator_impl const&) = delete;

    void increment();
    bool is_open() const;
    void fill_entry(directory_entry_context const* context);
    upath_directory_entry const& entry() const noexcept { return entry_; }

private:
    std::unique_ptr<directory_entry_context> context_;
    upath_directory_entry entry_;
};

}  // namespace detail

// An input iterator over the entries of one directory, "." and ".." included, in the order the
// system reads them. Copies share one reading position: advancing one advances them all, and
// they all reach the end together. Guard an iterator shared between threads.
template <class Impl, class Entry>
class basic_directory_iterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = Entry;
    using difference_type = std::ptrdiff_t;
    using pointer = Entry const*;
    using reference = Entry const&;

    // The end iterator.
    basic_directory_iterator() = default;

    // An empty path gives the end iterator; a directory that can't be opened throws.
    explicit basic_directory_iterator(upath const& directory) { open(directory.pathname()); }
    explicit basic_directory_iterator(fl::i18n::ustring const& directory) {
        open(detail::make_native_form(directory, true));
    }

    // Only the entries whose names the pattern matches.
    basic_directory_iterator(upath const& directory, pattern_string_context const& pattern,
                             bool tolerate_bad_pattern = false)
        : impl_(boost::make_shared<Impl>(directory.pathname(), pattern, tolerate_bad_pattern,
                                         detail::default_initialization)) {}
    basic_directory_iterator(fl::i18n::ustring const& directory,
                             pattern_string_context const& pattern,
                             bool tolerate_bad_pattern = false)
        : impl_(boost::make_shared<Impl>(detail::make_native_form(directory, true), pattern,
                                         tolerate_bad_pattern, detail::default_initialization)) {}

    reference operator*() const { return impl_->entry(); }
    pointer operator->() const { return &impl_->entry(); }

    basic_directory_iterator& operator++() {
        impl_->increment();
        return *this;
    }
    // Post-increment hands back the shared position, as any input iterator may.
    basic_directory_iterator operator++(int) {
        basic_directory_iterator const previous(*this);
        impl_->increment();
        return previous;
    }

    bool operator==(basic_directory_iterator const& other) const {
        return at_end() == other.at_end() && (at_end() || impl_ == other.impl_);
    }
    bool operator!=(basic_directory_iterator const& other) const { return !(*this == other); }

private:
    void open(fl::i18n::ustring const& directory) {
        if (!directory.empty()) {
            impl_ = boost::make_shared<Impl>(directory, detail::default_initialization);
        }
    }
    bool at_end() const { return !impl_ || !impl_->is_open(); }

    boost::shared_ptr<Impl> impl_;
};

using directory_iterator =
    basic_directory_iterator<detail::upath_directory_iterator_impl, upath_directory_entry>;

}  // namespace filesystem
}  // namespace fl

#endif
