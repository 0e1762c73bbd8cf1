#include <fl/filesystem/directory_iterator.hpp>

#include "filesystem/directory_entry_context.hpp"

#include <boost/make_shared.hpp>

namespace fl {
namespace filesystem {

pattern_string_context::~pattern_string_context() = default;

upath_directory_entry::upath_directory_entry()
    : record_(boost::make_shared<detail::file_attribute_context>()) {}

namespace detail {

upath_directory_iterator_impl::upath_directory_iterator_impl(fl::i18n::ustring const& directory,
                                                             initialization_mode) {
    context_ = std::make_unique<directory_entry_without_wc_support_context>(directory,
                                                                            &entry_.record_->entry);
    increment();
}

upath_directory_iterator_impl::upath_directory_iterator_impl(fl::i18n::ustring const& directory,
                                                             pattern_string_context const& pattern,
                                                             bool tolerate_bad_pattern,
                                                             initialization_mode) {
    context_ = std::make_unique<directory_entry_with_wc_support_context>(
        directory, pattern.filename, pattern.pattern, tolerate_bad_pattern, &entry_.record_->entry);
    increment();
}

upath_directory_iterator_impl::~upath_directory_iterator_impl() = default;

void upath_directory_iterator_impl::increment() {
    if (context_ && context_->read_next()) {
        fill_entry(context_.get());
    }
}

bool upath_directory_iterator_impl::is_open() const {
    return context_ && context_->is_open();
}

void upath_directory_iterator_impl::fill_entry(directory_entry_context const* context) {
    entry_.record_->directory = context->native();
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
