#ifndef OVI18N_TESTS_CODECVT_THROWN_ID_HPP
#define OVI18N_TESTS_CODECVT_THROWN_ID_HPP

#include <fl/i18n/codecvt/codecvt_exception.hpp>

// The id of the conversion exception that f throws, 0 when it returns, -1 for anything else.
template <class F>
int thrown_id(F&& f) {
    try {
        f();
    } catch (fl::i18n::CvtExceptionBase const& e) {
        return e.get_id();
    } catch (...) {
        return -1;
    }
    return 0;
}

#endif
