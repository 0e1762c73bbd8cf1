#include <fl/i18n/time/environment.hpp>
#include <fl/i18n/time/module_path.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using fl::i18n::detail::get_module_path_from_address;

std::string ascii(fl::i18n::ustring const& text) {
    return std::string(text.begin(), text.end());
}

TEST(ModulePath, AddressOfALibraryFunctionNamesTheLibrary) {
    auto const function = &fl::i18n::unsetenv;
    std::string const path = ascii(get_module_path_from_address(reinterpret_cast<void*>(function)));
    EXPECT_NE(path.find("libovi18n.so"), std::string::npos) << path;
}

TEST(ModulePath, AddressOutsideEveryModuleGivesNothing) {
    int on_stack = 0;
    static char const* const literal = "a literal lies in the test program";
    struct Case {
        void* address;
        bool named;
    };
    for (Case const& c :
         {Case{nullptr, false}, Case{&on_stack, false}, Case{reinterpret_cast<void*>(0x10), false},
          Case{const_cast<char*>(literal), true}}) {
        EXPECT_EQ(get_module_path_from_address(c.address).empty(), !c.named) << c.address;
    }
}

}  // namespace
