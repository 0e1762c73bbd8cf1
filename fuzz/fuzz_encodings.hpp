#ifndef OVI18N_FUZZ_FUZZ_ENCODINGS_HPP
#define OVI18N_FUZZ_FUZZ_ENCODINGS_HPP

#include <cstddef>

// Encodings the converter targets pick from: the two whose byte sequences and characters
// correspond one to one, then single-byte, multi-byte and stateless CJK tables, and UTF-16.
constexpr char const* fuzz_encodings[] = {"UTF-8",  "ISO-8859-1", "windows-1252", "Shift_JIS",
                                          "EUC-JP", "GB18030",    "UTF-16LE"};
constexpr std::size_t fuzz_encoding_count = sizeof(fuzz_encodings) / sizeof(fuzz_encodings[0]);
// Decoding then encoding again gives the same bytes only below this index: other tables map
// several byte sequences to one character.
constexpr std::size_t fuzz_bijective_encodings = 2;

#endif
