#ifndef OVI18N_TESTS_FILESYSTEM_STREAMS_SCRATCH_DIRECTORY_HPP
#define OVI18N_TESTS_FILESYSTEM_STREAMS_SCRATCH_DIRECTORY_HPP

#include <fl/i18n/ustring.hpp>

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

// A directory of its own under the build tree's scratch area, removed with everything in it.
class scratch_directory {
public:
    explicit scratch_directory(std::string const& name) {
        char const* const root = std::getenv("OVI18N_TEST_TMP");
        std::filesystem::path base =
            root != nullptr ? root : std::filesystem::temp_directory_path();
        path_ = base / (name + "-" + std::to_string(::getpid()));
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    scratch_directory(scratch_directory const&) = delete;
    scratch_directory& operator=(scratch_directory const&) = delete;
    ~scratch_directory() {
        namespace sfs = std::filesystem;
        std::error_code ignored;
        // Permission tests may leave directories closed; open them again before removal.
        sfs::permissions(path_, sfs::perms::owner_all, sfs::perm_options::add, ignored);
        for (auto it = sfs::recursive_directory_iterator(path_, ignored);
             it != sfs::recursive_directory_iterator(); it.increment(ignored)) {
            if (it->is_directory(ignored) && !it->is_symlink(ignored)) {
                sfs::permissions(it->path(), sfs::perms::owner_all, sfs::perm_options::add,
                                 ignored);
            }
        }
        sfs::remove_all(path_, ignored);
    }

    // Bytes of the directory, and of a name inside it.
    std::string bytes(std::string const& name = std::string()) const {
        return name.empty() ? path_.string() : (path_ / name).string();
    }
    // The same as ASCII text; the build tree's path is ASCII.
    fl::i18n::ustring text(std::string const& name = std::string()) const {
        std::string const b = bytes(name);
        return fl::i18n::ustring(b.begin(), b.end());
    }

    void write(std::string const& name, std::string const& content) const {
        std::ofstream(bytes(name), std::ios::binary) << content;
    }

private:
    std::filesystem::path path_;
};

#endif
