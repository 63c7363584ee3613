#pragma once

namespace plotsmith::test {

/// Where things are on the machine that builds the tests. One file alone is compiled with these names, so
/// that a clone at another place need not compile all others anew.
///@{
extern const char* const kSourceFolder;   ///< the root of the repository
extern const char* const kBuildFolder;    ///< where CMake has built
extern const char* const kCorpusFolder;   ///< workbooks of other programs; may be absent
extern const char* const kSchemasFolder;  ///< the published schemas of the file format; may be absent
extern const char* const kCommand;        ///< the program plotsmith
extern const char* const kMakeGallery;    ///< the program that makes the gallery's workbook
///@}

}  // namespace plotsmith::test
