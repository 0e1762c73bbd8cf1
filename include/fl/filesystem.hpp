#ifndef FL_FILESYSTEM_HPP
#define FL_FILESYSTEM_HPP

#include <fl/i18n/ustring.hpp>

#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/basic_ifstream.hpp>
#include <fl/filesystem/basic_path.hpp>
#include <fl/filesystem/boost_path_bridge.hpp>
#include <fl/filesystem/directory_iterator.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/filename_converter.hpp>
#include <fl/filesystem/filesystem_error.hpp>
#include <fl/filesystem/fsys_exception.hpp>
#include <fl/filesystem/modifying_operations.hpp>
#include <fl/filesystem/path_algebra.hpp>
#include <fl/filesystem/path_comparison.hpp>
#include <fl/filesystem/path_resolution.hpp>
#include <fl/filesystem/path_traits.hpp>
#include <fl/filesystem/pathname_element_context.hpp>
#include <fl/filesystem/status_operations.hpp>
#include <fl/filesystem/stream_opening.hpp>
#include <fl/filesystem/temporary_files.hpp>
#include <fl/filesystem/upath_constant.hpp>
#include <fl/filesystem/upath_directory_entry.hpp>
#include <fl/filesystem/wildcard_pattern.hpp>

#endif
