#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/filesystem_error.hpp>
#include <fl/filesystem/upath_directory_entry.hpp>

#include "filesystem/directory_entry_context.hpp"
#include "filesystem/stat_conversion.hpp"
#include "platform/posix_platform.hpp"

#include <cerrno>

namespace fl {
namespace filesystem {
namespace {

using stat_call = int (*)(std::string const&, struct stat&);

std::string full_bytes(detail::file_attribute_context const& record) {
    return record.directory + "/" + record.entry.d_name;
}

// d_type is the file type of st_mode shifted down by 12 bits.
unsigned int from_d_type(unsigned char d_type) {
    return static_cast<unsigned int>(d_type) << 12;
}

unsigned int type_by_stat(detail::file_attribute_context const& record, stat_call call) {
    std::string const path = full_bytes(record);
    struct stat info {};
    int const error = call(path, info);
    if (error == 0) {
        return info.st_mode & file_status::file_type_mask;
    }
    if (error == ENOENT || error == EINVAL) {
        return file_status::file_not_found;
    }
    throw_filesystem_error(error, path);
}

file_status status_by(detail::file_attribute_context const& record, stat_call call) {
    struct stat info {};
    int const error = call(full_bytes(record), info);
    if (error == 0) {
        return detail::to_file_status(info);
    }
    if (error == ENOENT) {
        return file_status();
    }
    throw_filesystem_error(error, std::string());
}

}  // namespace

fl::i18n::ustring upath_directory_entry::filename() const {
    return detail::from_filesystem(record_->entry.d_name);
}

fl::i18n::ustring upath_directory_entry::pathname() const {
    return detail::from_filesystem(record_->directory);
}

fl::i18n::ustring upath_directory_entry::full_pathname() const {
    return detail::from_filesystem(full_bytes(*record_));
}

unsigned int upath_directory_entry::type() const {
    if (record_->entry.d_type != DT_UNKNOWN) {
        return from_d_type(record_->entry.d_type);
    }
    return type_by_stat(*record_, &detail::platform::lstat_path);
}

unsigned int upath_directory_entry::target_type() const {
    if (record_->entry.d_type != DT_UNKNOWN && record_->entry.d_type != DT_LNK) {
        return from_d_type(record_->entry.d_type);
    }
    return type_by_stat(*record_, &detail::platform::stat_path);
}

file_status upath_directory_entry::status() const {
    return status_by(*record_, &detail::platform::stat_path);
}

file_status upath_directory_entry::symlink_status() const {
    return status_by(*record_, &detail::platform::lstat_path);
}

namespace detail {

std::string raw_filename(upath_directory_entry const& entry) {
    return entry.record_->entry.d_name;
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
