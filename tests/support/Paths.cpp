#include "tests/support/Paths.h"

namespace plotsmith::test {

const char* const kSourceFolder = PLOTSMITH_SOURCE_DIR;
const char* const kBuildFolder = PLOTSMITH_BINARY_DIR;
const char* const kCorpusFolder = PLOTSMITH_CORPUS_DIR;
const char* const kSchemasFolder = PLOTSMITH_SCHEMAS_DIR;
const char* const kCommand = PLOTSMITH_COMMAND;
const char* const kMakeGallery = PLOTSMITH_MAKE_GALLERY;

}  // namespace plotsmith::test
