#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"

#include <gtest/gtest.h>
#include <boost/exception_ptr.hpp>

#include <functional>
#include <string>
#include <vector>

namespace fl::i18n {
namespace {

struct leaf_case {
    std::function<void()> raise;
    std::function<bool(CvtExceptionBase const&)> is_leaf;
    int id;
    char const* what;
};

template <class Leaf>
leaf_case leaf(Leaf const& e, int id, char const* what) {
    return {[e] { fl::detail::throw_exception(e); },
            [](CvtExceptionBase const& b) { return dynamic_cast<Leaf const*>(&b) != nullptr; }, id,
            what};
}

std::vector<leaf_case> const leaves = {
    leaf(CvtInvalidArgument(), 1, "fl:i18n:CvtInvalidArgument"),
    leaf(CvtInvalidEncodingName("x-bad"), 2, "Invalid encoding name specified."),
    leaf(CvtCallBackSettingFailure(), 3, "fl:i18n:CvtCallBackSettingFailure"),
    leaf(CvtNonSupportedMode(), 4, "fl:i18n:CvtNonSupportedMode"),
    leaf(CvtInvalidCharacter(), 5, "Invalid character code sequence detected."),
    leaf(CvtSizeTooLarge(), 6, "Data size too large for character code conversion."),
    leaf(CvtConversionFailure(), 7, "Failed to convert character code."),
};

TEST(codecvt_exception, each_leaf_survives_exception_ptr_with_its_class) {
    for (leaf_case const& c : leaves) {
        SCOPED_TRACE(c.what);
        boost::exception_ptr captured;
        try {
            c.raise();
        } catch (...) {
            captured = boost::current_exception();
        }
        ASSERT_TRUE(captured);
        try {
            boost::rethrow_exception(captured);
        } catch (CvtExceptionBase const& e) {
            EXPECT_TRUE(c.is_leaf(e));
            EXPECT_EQ(e.get_id(), c.id);
            EXPECT_STREQ(e.what(), c.what);
        } catch (...) {
            ADD_FAILURE() << "lost its class";
        }
    }
}

}  // namespace
}  // namespace fl::i18n
