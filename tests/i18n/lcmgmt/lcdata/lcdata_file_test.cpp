#include <fl/i18n/lcmgmt/lc_rsc_exception.hpp>

#include "filesystem/streams/scratch_directory.hpp"
#include "lcdata_test_support.hpp"

#include <gtest/gtest.h>

namespace {

using fl::i18n::LcRscFileReadFailure;
using fl::i18n::LcRscInvalidXmlDoc;
using fl::i18n::LcRscOpenFileFailure;
using fl::i18n::lcmgmt::parseLcData;

// A document of exactly the given size, padded with a comment; complete or cut before its end.
std::string document_of_size(std::size_t size, bool complete) {
    std::string const head =
        "<lcdata><locale name=\"de_DE\"><alias name=\"deutsch\"/></locale><!--";
    std::string const tail = complete ? "--></lcdata>" : "--></lcdata";
    return head + std::string(size - head.size() - tail.size(), 'x') + tail;
}

// Reads go in pieces of 1024 bytes: the pieces' edges must neither lose text nor let a document
// that ends early pass.
TEST(LcdataFile, ReadsInPiecesAndSeesTheEnd) {
    scratch_directory const dir("lcdata_pieces");
    struct size_case {
        std::size_t size;
        bool complete;
    } const cases[] = {{1023, true}, {1024, true},  {1025, true},
                       {3000, true}, {1024, false}, {2048, false}};
    for (auto const& c : cases) {
        std::string const text = document_of_size(c.size, c.complete);
        ASSERT_EQ(c.size, text.size());
        dir.write("lcdata.xml", text);
        parsed_document doc;
        if (c.complete) {
            EXPECT_NO_THROW(parseLcData(doc.database, dir.bytes("lcdata.xml"), doc.warnings))
                << c.size;
            EXPECT_EQ("de_DE", doc.database.canonical_locale_name("deutsch")) << c.size;
        } else {
            EXPECT_THROW(parseLcData(doc.database, dir.bytes("lcdata.xml"), doc.warnings),
                         LcRscInvalidXmlDoc)
                << c.size;
        }
    }
}

TEST(LcdataFile, FailuresNameTheFileInPrintableForm) {
    scratch_directory const dir("lcdata_failures");
    parsed_document doc;
    std::string const missing = dir.bytes("caf\xC3\xA9\n.xml");
    std::string const printable = dir.bytes("cafC3A9A.xml");
    try {
        parseLcData(doc.database, missing, doc.warnings);
        FAIL() << "a missing file must fail";
    } catch (LcRscOpenFileFailure const& e) {
        EXPECT_EQ("fl:i18n:LcRscOpenFileFailure", e.getId());
        EXPECT_EQ(2, e.getCode());
        EXPECT_EQ("Failed to open file " + printable + ".", e.what());
    }
    // A directory opens but can't be read.
    try {
        parseLcData(doc.database, dir.bytes(), doc.warnings);
        FAIL() << "a directory must fail";
    } catch (LcRscFileReadFailure const& e) {
        EXPECT_EQ("fl:i18n:LcRscFileReadFailure", e.getId());
        EXPECT_EQ(3, e.getCode());
        EXPECT_EQ("Failed to read file " + dir.bytes() + ".", e.what());
    }
}

}  // namespace
