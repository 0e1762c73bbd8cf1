#include <fl/filesystem/file_status.hpp>

namespace fl {
namespace filesystem {

// The definitions that make each constant an exported object of the library.
unsigned int const file_status::file_type_unknown;
unsigned int const file_status::file_type_auto;
unsigned int const file_status::fifo_file;
unsigned int const file_status::character_file;
unsigned int const file_status::directory_file;
unsigned int const file_status::block_file;
unsigned int const file_status::regular_file;
unsigned int const file_status::symlink_file;
unsigned int const file_status::socket_file;
unsigned int const file_status::reparse_file;
unsigned int const file_status::file_not_found;
unsigned int const file_status::file_type_mask;
unsigned int const file_status::owner_read;
unsigned int const file_status::owner_write;
unsigned int const file_status::owner_exec;
unsigned int const file_status::owner_all;
unsigned int const file_status::group_read;
unsigned int const file_status::group_write;
unsigned int const file_status::group_exec;
unsigned int const file_status::group_all;
unsigned int const file_status::others_read;
unsigned int const file_status::others_write;
unsigned int const file_status::others_exec;
unsigned int const file_status::others_all;
unsigned int const file_status::no_perms;
unsigned int const file_status::perms_all;
unsigned int const file_status::perms_mask;
unsigned int const file_status::perms_unknown;
unsigned int const file_status::sticky_bit;
unsigned int const file_status::set_gid_on_exec;
unsigned int const file_status::set_uid_on_exec;
unsigned int const file_status::perms_add;
unsigned int const file_status::perms_remove;
unsigned int const file_status::perms_symlink;
unsigned int const file_status::archive_file;
unsigned int const file_status::system_file;
unsigned int const file_status::hidden_file;
unsigned int const file_status::non_indexed_file;

}  // namespace filesystem
}  // namespace fl
