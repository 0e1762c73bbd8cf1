#include <fl/filesystem.hpp>

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "filesystem/temp_directory_fixture.hpp"

namespace {

namespace sfs = std::filesystem;
using fstest::u;

// The loaded library's file and the symbol name of get_install_path in it.
Dl_info library_info() {
    Dl_info info{};
    EXPECT_NE(::dladdr(reinterpret_cast<void*>(&fl::filesystem::get_install_path), &info), 0);
    return info;
}

// The build tree mirrors an installation: the library sits in <build>/bin/x64linux.
TEST(InstallPath, FoundFromTheBuildTree) {
    char const* build = std::getenv("OVI18N_BUILD_ROOT");
    ASSERT_NE(build, nullptr);
    fl::i18n::ustring const root = fl::filesystem::get_install_path();
    EXPECT_EQ(root, u(sfs::canonical(build).string()));
    EXPECT_EQ(fl::filesystem::get_install_path(), root);  // the same answer every time
}

class InstalledCopy : public fstest::temp_directory_test {};

// A copy of the library in an installation layout finds that installation, each loaded
// module answering for its own file.
TEST_F(InstalledCopy, FindsItsOwnRoot) {
    sfs::create_directories(bytes("inst/bin/x64linux"));
    std::string const copy = bytes("inst/bin/x64linux/libovi18n.so");
    Dl_info const loaded = library_info();
    ASSERT_NE(loaded.dli_sname, nullptr);
    sfs::copy_file(sfs::canonical(loaded.dli_fname), copy);
    // Kept loaded: its process-wide answer stays reachable for the rest of the run.
    void* const handle = ::dlopen(copy.c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(handle, nullptr) << ::dlerror();
    using install_path_function = fl::i18n::ustring (*)();
    auto const get = reinterpret_cast<install_path_function>(::dlsym(handle, loaded.dli_sname));
    ASSERT_NE(get, nullptr);
    EXPECT_EQ(get(), u(sfs::canonical(bytes("inst")).string()));
}

}  // namespace
