#include <resource_core/resource_core.hpp>

#include <utility>

namespace resource_core {

BaseMsgID::BaseMsgID(std::string catalog, std::string key, ArgList args)
    : catalog_(std::move(catalog)), key_(std::move(key)), args_(std::move(args)) {}

BaseCatalogID::BaseCatalogID(std::string name) : name_(std::move(name)) {}

}  // namespace resource_core
