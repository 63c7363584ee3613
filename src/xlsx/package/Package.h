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

namespace plotsmith::xlsx {

class AtomicFile;

/// One relationship of a part, or of the package.
struct Relationship {
  std::string id;
  std::string type;    ///< the last segment of the type's address: "worksheet", "drawing", "chart"
  std::string target;  ///< the part's name, as Parts has it; of an external one the address as written
  bool external = false;
};

/// A workbook file as a package of parts (ECMA-376-2). Parts are read when they are asked for, and a
/// part that nobody changed is written back as the compressed bytes it came in, in its place and order. Part
/// names begin with a slash, are given decoded ("%20" is a blank) and compare ignoring ASCII case. All
/// failures are PackageErrors whose text is a sentence.
class Package {
 public:
  /// A package with the parts that every workbook needs still to be added.
  Package();
  /// Reads the directory, the content types and the relationships of the package.
  static Package Open(const std::string& path);
  Package(Package&&) noexcept;
  Package& operator=(Package&&) noexcept;
  ~Package();

  bool Has(std::string_view part) const;
  /// All parts, in the order of the file.
  std::vector<std::string> Parts() const;
  /// Of the part's override, or of its extension.
  std::string ContentType(std::string_view part) const;

  std::string Read(std::string_view part) const;
  /// The bytes piece by piece, for parts too large to hold.
  std::unique_ptr<Archive::Stream> Stream(std::string_view part) const;
  /// Replaces the bytes of a part that is there.
  void Replace(std::string_view part, std::string bytes);
  void Add(std::string_view part, std::string_view contentType, std::string bytes);
  void SetContentType(std::string_view part, std::string_view contentType);
  /// The first unused part name of the form prefix, number, suffix; numbers from 1.
  std::string FreeName(std::string_view prefix, std::string_view suffix) const;

  /// Of a part, or of the package for an empty name; targets resolved. Empty if there is none. Good until the
  /// part's relationships change.
  const std::vector<Relationship>& Relationships(std::string_view part) const;
  std::optional<Relationship> FindRelationship(std::string_view part, std::string_view id) const;
  std::optional<Relationship> FindRelationshipOfType(std::string_view part, std::string_view type) const;
  /// Returns the new relationship's id. `typeAddress` is the whole address.
  std::string AddRelationship(std::string_view part, std::string_view typeAddress, std::string_view target);
  /// Takes out a relationship of a part, if there is one of the id, and the parts that no other part refers
  /// to without it: its target, and what only such parts refer to. Returns the names of the parts that went.
  /// While some part's relationships can't be read, none goes.
  std::vector<std::string> RemoveRelationship(std::string_view part, std::string_view id);

  bool Changed() const { return changed_; }
  /// Writes the package to a new file beside `path`, and then puts that in the place of `path`: who looks
  /// finds the old file or the new one, whole. The file keeps its permissions; a link keeps pointing at it.
  void Save(const std::string& path);
  /// Writes the package to a stream. It is complete before the stream gets its first byte.
  void Save(std::ostream& out);

 private:
  struct Part;
  const Part& Get(std::string_view part) const;
  Part* Find(std::string_view part) const;
  Part& Put(std::string_view part, std::string bytes);
  /// The part and all that it refers to, directly or through others.
  std::set<std::string> Closure(const std::string& part) const;
  /// Those of the closure that no part outside of it refers to, directly or through others.
  std::set<std::string> OnlyThrough(const std::string& part) const;
  /// Into an empty file.
  void Write(int descriptor);
  /// Takes a part out, with its relationships and its content type.
  void Remove(const std::string& part);
  /// Says what a zip archive without content types is.
  [[noreturn]] void ThrowForeignFormat() const;
  void ParseContentTypes(std::string_view bytes);
  void Commit(AtomicFile& file, const std::string& path);

  std::unique_ptr<Archive> archive_;
  std::vector<std::unique_ptr<Part>> parts_;          // in the order of the file
  std::map<std::string, Part*, std::less<>> byName_;  ///< folded
  /// By the name of the part that holds them; read once, as each shape of a drawing looks its own up.
  mutable std::map<std::string, std::vector<Relationship>, std::less<>> relationships_;
  std::unique_ptr<pugi::xml_document> contentTypes_;
  std::map<std::string, pugi::xml_node, std::less<>> overrides_;  ///< in that document, by part, folded
  std::map<std::string, pugi::xml_node, std::less<>> defaults_;   ///< likewise by extension
  bool contentTypesChanged_ = false;
  bool changed_ = false;
};

/// The part that a target written in `source` names; empty if it climbs out of the package.
std::string ResolveTarget(std::string_view source, std::string_view target);
/// How `source` writes the target, relative to its own folder and encoded.
std::string RelativeTarget(std::string_view source, std::string_view target);

}  // namespace plotsmith::xlsx
