#include "i18n/facet/std_char16_support.hpp"

#include <cstddef>

// std::numpunct<char16_t> always holds the "C" punctuation; a named locale's punctuation would
// need a narrow-to-UTF-16 conversion that the standard library cannot make. The library's
// numpunct facet overrides every query anyway.

namespace std {

template <>
void numpunct<char16_t>::_M_initialize_numpunct(__c_locale) {
    if (!_M_data) {
        _M_data = new __numpunct_cache<char16_t>;
    }
    _M_data->_M_grouping = "";
    _M_data->_M_grouping_size = 0;
    _M_data->_M_use_grouping = false;
    _M_data->_M_decimal_point = u'.';
    _M_data->_M_thousands_sep = u',';
    for (size_t i = 0; i < __num_base::_S_oend; ++i) {
        _M_data->_M_atoms_out[i] =
            static_cast<char16_t>(static_cast<unsigned char>(__num_base::_S_atoms_out[i]));
    }
    for (size_t i = 0; i < __num_base::_S_iend; ++i) {
        _M_data->_M_atoms_in[i] =
            static_cast<char16_t>(static_cast<unsigned char>(__num_base::_S_atoms_in[i]));
    }
    _M_data->_M_truename = u"true";
    _M_data->_M_truename_size = 4;
    _M_data->_M_falsename = u"false";
    _M_data->_M_falsename_size = 5;
}

template <>
numpunct<char16_t>::~numpunct() {
    delete _M_data;
}

// Number formatting for char16_t streams comes from the standard's own templates, built here
// once for every user of the library.
template struct __numpunct_cache<char16_t>;
template class num_put<char16_t, ostreambuf_iterator<char16_t>>;

}  // namespace std
