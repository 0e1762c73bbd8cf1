#ifndef FL_FILESYSTEM_FILE_STATUS_HPP
#define FL_FILESYSTEM_FILE_STATUS_HPP

#include <fl/i18n/export.hpp>

#include <boost/date_time/posix_time/ptime.hpp>

#include <cstdint>

namespace fl {
namespace filesystem {

// What a status query learns about a file: its type, the low 12 bits of its mode, its three
// times and its size. A default status is that of a file that isn't there.
class FL_I18N_API file_status {
public:
    // Types: the S_IF values of st_mode.
    static unsigned int const file_type_unknown = 0;
    static unsigned int const file_type_auto = 1;
    static unsigned int const fifo_file = 0x1000;
    static unsigned int const character_file = 0x2000;
    static unsigned int const directory_file = 0x4000;
    static unsigned int const block_file = 0x6000;
    static unsigned int const regular_file = 0x8000;
    static unsigned int const symlink_file = 0xA000;
    static unsigned int const socket_file = 0xC000;
    static unsigned int const reparse_file = 0xE000;
    static unsigned int const file_not_found = 0xFFFF0000;
    static unsigned int const file_type_mask = 0xF000;

    static unsigned int const owner_read = 0x100;
    static unsigned int const owner_write = 0x80;
    static unsigned int const owner_exec = 0x40;
    static unsigned int const owner_all = 0x1C0;
    static unsigned int const group_read = 0x20;
    static unsigned int const group_write = 0x10;
    static unsigned int const group_exec = 8;
    static unsigned int const group_all = 0x38;
    static unsigned int const others_read = 4;
    static unsigned int const others_write = 2;
    static unsigned int const others_exec = 1;
    static unsigned int const others_all = 7;
    static unsigned int const no_perms = 0;
    static unsigned int const perms_all = 0x1FF;
    static unsigned int const perms_mask = 0xFFFF;
    static unsigned int const perms_unknown = 0xFFFF;
    static unsigned int const sticky_bit = 0x200;
    static unsigned int const set_gid_on_exec = 0x400;
    static unsigned int const set_uid_on_exec = 0x800;

    // Modifiers of a permissions request.
    static unsigned int const perms_add = 0x10000;
    static unsigned int const perms_remove = 0x20000;
    static unsigned int const perms_symlink = 0x40000;

    // Attribute flags of a permissions request. They share values with the type constants, but
    // they are not types; on this platform they mean nothing and are dropped from a request.
    static unsigned int const archive_file = 0x1000;
    static unsigned int const system_file = 0x2000;
    static unsigned int const hidden_file = 0x4000;
    static unsigned int const non_indexed_file = 0x8000;

    file_status() = default;
    file_status(unsigned int type, unsigned int permissions,
                boost::posix_time::ptime const& last_access_time,
                boost::posix_time::ptime const& last_write_time,
                boost::posix_time::ptime const& last_status_change_time, std::uint64_t size)
        : type_(type),
          permissions_(permissions),
          last_access_time_(last_access_time),
          last_write_time_(last_write_time),
          last_status_change_time_(last_status_change_time),
          size_(size) {}

    unsigned int type() const noexcept { return type_; }
    unsigned int permissions() const noexcept { return permissions_; }
    boost::posix_time::ptime const& last_access_time() const noexcept { return last_access_time_; }
    boost::posix_time::ptime const& last_write_time() const noexcept { return last_write_time_; }
    boost::posix_time::ptime const& last_status_change_time() const noexcept {
        return last_status_change_time_;
    }
    std::uint64_t size() const noexcept { return size_; }

private:
    unsigned int type_ = file_not_found;
    unsigned int permissions_ = no_perms;
    boost::posix_time::ptime last_access_time_;
    boost::posix_time::ptime last_write_time_;
    boost::posix_time::ptime last_status_change_time_;
    std::uint64_t size_ = 0;
};

// The quick status: type (the raw st_mode bits under file_type_mask), modification time, size.
class file_status_light {
public:
    file_status_light() = default;
    file_status_light(unsigned int type, boost::posix_time::ptime const& last_write_time,
                      std::uint64_t size)
        : type_(type), last_write_time_(last_write_time), size_(size) {}

    unsigned int type() const noexcept { return type_; }
    boost::posix_time::ptime const& last_write_time() const noexcept { return last_write_time_; }
    std::uint64_t size() const noexcept { return size_; }

private:
    unsigned int type_ = file_status::file_not_found;
    boost::posix_time::ptime last_write_time_;
    std::uint64_t size_ = 0;
};

}  // namespace filesystem
}  // namespace fl

#endif
