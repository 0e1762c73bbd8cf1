#ifndef FL_I18N_LCCTYPE_CTYPE_EXCEPTION_HPP
#define FL_I18N_LCCTYPE_CTYPE_EXCEPTION_HPP

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <exception>
#include <string>

namespace fl {
namespace i18n {

// Identifies a failure of comparison or transformation; the values are part of the interface.
enum ctype_excp_id : std::int32_t {
    ctype_size_too_large = 1,
    ctype_transform_failure = 2,
    ctype_str_comp_failure = 3,
    ctype_invalid_character = 4,
    ctype_invalid_argument = 5,
};

// Every failure of the character handling derives from this; what() is a sentence.
class FL_I18N_API CtypeExceptionBase : public std::exception {
public:
    CtypeExceptionBase(char const* message, ctype_excp_id id);
    CtypeExceptionBase(CtypeExceptionBase const& other);
    ~CtypeExceptionBase() override;

    char const* what() const noexcept override;
    ctype_excp_id get_id() const noexcept { return id_; }

private:
    std::string message_;
    ctype_excp_id id_;
};

class FL_I18N_API CtypeSizeTooLarge : public CtypeExceptionBase {
public:
    CtypeSizeTooLarge();
};

class FL_I18N_API CtypeTransformFailure : public CtypeExceptionBase {
public:
    CtypeTransformFailure();
};

class FL_I18N_API CtypeStrCompFailure : public CtypeExceptionBase {
public:
    CtypeStrCompFailure();
};

class FL_I18N_API CtypeInvalidCharacter : public CtypeExceptionBase {
public:
    CtypeInvalidCharacter();
};

class FL_I18N_API CtypeInvalidArgument : public CtypeExceptionBase {
public:
    CtypeInvalidArgument();
};

namespace lcctype {
namespace detail {

// Out of line, so that templates in headers can fail without seeing the throwing machinery.
[[noreturn]] FL_I18N_API void throw_ctype_invalid_character_exception();

}  // namespace detail
}  // namespace lcctype

}  // namespace i18n
}  // namespace fl

#endif
