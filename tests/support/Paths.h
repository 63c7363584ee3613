#pragma once

namespace plotsmith::test {

/// Paths on the machine that builds the tests. Only one file is compiled with these paths, so that a clone at
/// another path need not compile the others again.
///@{
extern const char* const kSourceFolder;   ///< The root of the repository.
extern const char* const kBuildFolder;    ///< The build folder.
extern const char* const kCorpusFolder;   ///< Workbooks of other programs; may not exist.
extern const char* const kSchemasFolder;  ///< The published schemas of the file format; may not exist.
extern const char* const kCommand;        ///< The program plotsmith.
extern const char* const kMakeGallery;    ///< The program that makes the gallery's workbook.
///@}

}  // namespace plotsmith::test
