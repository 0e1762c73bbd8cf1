#ifndef RESOURCE_CORE_RESOURCE_CORE_HPP
#define RESOURCE_CORE_RESOURCE_CORE_HPP

#include <resource_core/catalog_name.hpp>
#include <resource_core/export.hpp>

#include <boost/variant.hpp>

#include <string>
#include <vector>

namespace resource_core {

// The values that fill the holes of a message text, in order: numbers, bytes in the process's
// default code page, or UTF-16 text.
using ArgList = std::vector<boost::variant<long, std::string, std::basic_string<char16_t>>>;

// A message named by its catalog and key, together with the arguments to format it with.
class RESOURCE_CORE_API BaseMsgID {
public:
    BaseMsgID(std::string catalog, std::string key, ArgList args);

    std::string const& getCatalogName() const noexcept { return catalog_; }
    std::string const& getKey() const noexcept { return key_; }
    ArgList const& getArgs() const noexcept { return args_; }

private:
    std::string catalog_;
    std::string key_;
    ArgList args_;
};

// A catalog named by its text, as the message service takes it.
class RESOURCE_CORE_API BaseCatalogID {
public:
    explicit BaseCatalogID(std::string name);

    std::string const& getCatalogName() const noexcept { return name_; }

private:
    std::string name_;
};

}  // namespace resource_core

#endif
