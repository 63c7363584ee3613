#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <pugixml.hpp>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "xlsx/package/Archive.h"
#include "xlsx/package/FileStamp.h"

namespace plotsmith::xlsx {

class AtomicFile;

/// One relationship of a part, or of the package.
struct Relationship {
  std::string id;      ///< The id, such as "rId1".
  std::string type;    ///< The last segment of the type's URI: "worksheet", "drawing", "chart".
  std::string target;  ///< The name of a part, as in Parts; the URI as it is written for an external target.
  bool external = false;  ///< Whether the target is outside of the package.
};

/// A workbook file as a package of parts (ECMA-376-2). A part is read when it is needed. An unchanged part is
/// written back as the same compressed bytes, in the same order. Names of parts (see PartNames.h) are
/// compared without regard to ASCII case. All failures are PackageErrors whose text is a sentence.
class Package {
 public:
  /// Makes an empty package. The caller adds the parts that every workbook needs.
  Package();
  /// Reads the directory, the content types and the relationships of the package.
  static Package Open(const std::string& path);
  /// Moves the package. After that, the other object can only be assigned to or destroyed.
  ///@{
  Package(Package&&) noexcept;
  Package& operator=(Package&&) noexcept;
  ///@}
  ~Package();

  /// Returns true if there is a part with the name.
  bool Has(std::string_view part) const;
  /// Returns the names of all parts, in the order of the file.
  std::vector<std::string> Parts() const;
  /// Returns the content type of a part, from its override or its extension.
  std::string ContentType(std::string_view part) const;

  /// Returns the inflated bytes of a part.
  std::string Read(std::string_view part) const;
  /// Opens a part that is too large for memory, to read it piece by piece.
  std::unique_ptr<Archive::Stream> Stream(std::string_view part) const;
  /// Replaces the bytes of an existing part.
  void Replace(std::string_view part, std::string bytes);
  /// Adds a part.
  void Add(std::string_view part, std::string_view contentType, std::string bytes);
  /// Sets the content type of a part.
  void SetContentType(std::string_view part, std::string_view contentType);
  /// Returns the first unused part name made of prefix, number and suffix. Numbers begin with 1.
  std::string FreeName(std::string_view prefix, std::string_view suffix) const;

  /// Returns the relationships of a part, or of the package for an empty name, with resolved targets. The
  /// reference is valid until the part's relationships change.
  const std::vector<Relationship>& Relationships(std::string_view part) const;
  /// Returns a part's relationship with the id, or nothing.
  std::optional<Relationship> FindRelationship(std::string_view part, std::string_view id) const;
  /// Returns a part's first relationship of a type, such as "styles", that isn't external.
  std::optional<Relationship> FindRelationshipOfType(std::string_view part, std::string_view type) const;
  /// Adds a relationship and returns its id. `typeUri` is the complete URI of the type.
  std::string AddRelationship(std::string_view part, std::string_view typeUri, std::string_view target);
  /// Removes a part's relationship with the id, and the parts that no other part refers to after that.
  /// Returns the names of the removed parts. No part is removed if the relationships of some part can't be
  /// read.
  std::vector<std::string> RemoveRelationship(std::string_view part, std::string_view id);

  /// Returns true if the package was changed since it was opened.
  bool Changed() const { return changed_; }
  /// Throws a PackageError if the path is the package's own file, or the last one that it was saved to, and
  /// another program has changed that file since.
  void CheckUnchanged(const std::string& path) const;
  /// Writes the package to a new file, which then replaces `path` in one step. At any moment, `path` is a
  /// complete file. The file keeps its permissions; if `path` is a link, its target is replaced. Throws a
  /// PackageError in the same cases as CheckUnchanged, and if the file can't be written.
  void Save(const std::string& path);
  /// Writes the package to a stream. The package is complete before the stream gets its first byte.
  void Save(std::ostream& out);

 private:
  struct Part;
  const Part& Get(std::string_view part) const;
  Part* Find(std::string_view part) const;
  Part& Put(std::string_view part, std::string bytes);
  /// Returns a part and all parts that it refers to, directly or through others.
  std::set<std::string> Closure(const std::string& part) const;
  /// Returns the parts of the closure that no part outside the closure refers to, directly or through others.
  std::set<std::string> OnlyThrough(const std::string& part) const;
  /// Writes the package into an empty file.
  void Write(int descriptor);
  /// Removes a part with its relationships and its content type.
  void Remove(const std::string& part);
  /// Throws a PackageError that names the format of a zip file without content types.
  [[noreturn]] void ThrowForeignFormat() const;
  void ParseContentTypes(std::string_view bytes);
  void Commit(AtomicFile& file, const std::string& path);

  /// A file other than the package's own that the package was saved to.
  struct Copy {
    std::string path;
    std::optional<FileStamp> stamp;  ///< The state of the file after the save.
  };

  std::unique_ptr<Archive> archive_;
  std::optional<Copy> copy_;                          ///< The last copy, if there is one.
  std::vector<std::unique_ptr<Part>> parts_;          // in the order of the file
  std::map<std::string, Part*, std::less<>> byName_;  ///< By name in lower case.
  /// The relationships that were read, by the name of the part. They are cached because each shape of a
  /// drawing looks its own up.
  mutable std::map<std::string, std::vector<Relationship>, std::less<>> relationships_;
  std::unique_ptr<pugi::xml_document> contentTypes_;
  /// The elements of contentTypes_: `Override` by part in lower case, and `Default` by extension.
  ///@{
  std::map<std::string, pugi::xml_node, std::less<>> overrides_;
  std::map<std::string, pugi::xml_node, std::less<>> defaults_;
  ///@}
  bool contentTypesChanged_ = false;
  bool changed_ = false;
};

}  // namespace plotsmith::xlsx
