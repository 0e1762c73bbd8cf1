#ifndef RESOURCE_CORE_EXPORT_HPP
#define RESOURCE_CORE_EXPORT_HPP

#define RESOURCE_CORE_API __attribute__((visibility("default")))

#endif
