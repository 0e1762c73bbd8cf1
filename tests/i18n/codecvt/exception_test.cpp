#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"
#include "support/cloned_exception.hpp"

#include <gtest/gtest.h>

#include <functional>

namespace fl::i18n {
namespace {

template <class Leaf>
std::function<void()> thrown(Leaf const& e) {
    return [e] { fl::detail::throw_exception(e); };
}

TEST(codecvt_exception, each_leaf_survives_exception_ptr_with_its_class) {
    struct {
        std::function<void()> raise;
        int id;
        char const* what;
    } const leaves[] = {
        {thrown(CvtInvalidArgument()), 1, "fl:i18n:CvtInvalidArgument"},
        {thrown(CvtInvalidEncodingName("x-bad")), 2, "Invalid encoding name specified."},
        {thrown(CvtCallBackSettingFailure()), 3, "fl:i18n:CvtCallBackSettingFailure"},
        {thrown(CvtNonSupportedMode()), 4, "fl:i18n:CvtNonSupportedMode"},
        {thrown(CvtInvalidCharacter()), 5, "Invalid character code sequence detected."},
        {thrown(CvtSizeTooLarge()), 6, "Data size too large for character code conversion."},
        {thrown(CvtConversionFailure()), 7, "Failed to convert character code."},
    };
    for (auto const& c : leaves) {
        expect_cloned_as_thrown<CvtExceptionBase>(c.raise, [&](CvtExceptionBase const& e) {
            EXPECT_EQ(e.get_id(), c.id);
            EXPECT_STREQ(e.what(), c.what);
        });
    }
}

}  // namespace
}  // namespace fl::i18n
