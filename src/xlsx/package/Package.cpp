#include "xlsx/package/Package.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <new>
#include <set>
#include <utility>

#include "runtime/Ascii.h"
#include "runtime/Strings.h"
#include "runtime/SystemErrors.h"
#include "runtime/Utf8Path.h"
#include "xlsx/base/Limits.h"
#include "xlsx/package/AtomicFile.h"
#include "xlsx/package/FileSystem.h"
#include "xlsx/package/MemoryStream.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/PartNames.h"
#include "xlsx/package/WorkbookKind.h"
#include "xlsx/package/Xml.h"
#include "xlsx/package/XmlStream.h"
#include "xlsx/package/XmlTags.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::string_view kContentTypes = "/[Content_Types].xml";
constexpr std::string_view kContentTypesNamespace =
    "http://schemas.openxmlformats.org/package/2006/content-types";
constexpr std::string_view kRelationshipsNamespace =
    "http://schemas.openxmlformats.org/package/2006/relationships";
constexpr std::string_view kRelationshipsType = "application/vnd.openxmlformats-package.relationships+xml";

/// Returns true for the content types and the relationships. They are stored like parts, but no relationship
/// may refer to them.
bool IsBookkeeping(std::string_view part) {
  return part == kContentTypes || ascii::Lower(part).ends_with(".rels");
}

/// Returns the name of the part that an override refers to, in the form used for comparisons.
std::string PartNameOf(pugi::xml_node type) {
  return ascii::Lower(PercentDecoded(xml::Attribute(type, "PartName")));
}

/// Returns the name of the entry for a new part. The content types aren't a part, so their name isn't
/// encoded.
std::string NewEntryName(const std::string& part) {
  return part == kContentTypes ? part.substr(1) : PercentEncoded(part.substr(1));
}

std::string_view LastSegment(std::string_view uri) { return uri.substr(uri.rfind('/') + 1); }

/// A file that is deleted when it is closed.
class ScratchFile {
 public:
  ScratchFile() : file_(file_system::OpenScratch()) {
    if (file_ < 0) {
      throw PackageError(std::string("a temporary file can't be made: ") + runtime::SystemErrorText(errno));
    }
  }
  ~ScratchFile() { file_system::Close(file_); }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;
  int Descriptor() const { return file_; }

 private:
  int file_;
};
constexpr std::size_t kCopiedBlock = 256 * 1024;

bool IsSameFile(const std::string& one, const std::string& other) {
  std::error_code ignored;
  return std::filesystem::equivalent(runtime::PathOf(one), runtime::PathOf(other), ignored);
}

/// Reopens the file of a closed archive. If that fails, returns false and leaves the archive closed.
bool Reopen(std::unique_ptr<Archive>& archive) {
  try {
    archive = std::make_unique<Archive>(archive->Path());
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

/// A part. Only new and changed parts are in memory; the others are entries of the archive.
struct Package::Part {
  std::string name;
  std::optional<std::size_t> entry;
  std::optional<std::string> bytes;
};

Package::Package() {
  ParseContentTypes(std::string(kXmlDeclaration) + R"(<Types xmlns=")" + std::string(kContentTypesNamespace) +
                    R"("><Default Extension="rels" ContentType=")" + std::string(kRelationshipsType) +
                    R"("/><Default Extension="xml" ContentType="application/xml"/></Types>)");
  Put(kContentTypes, "");
  contentTypesChanged_ = true;
}

Package::Package(Package&&) noexcept = default;
Package& Package::operator=(Package&&) noexcept = default;
Package::~Package() = default;

Package Package::Open(const std::string& path) {
  Package package;
  package.parts_.clear();
  package.byName_.clear();
  package.archive_ = std::make_unique<Archive>(path);
  const auto& entries = package.archive_->Entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    auto part = std::make_unique<Part>();
    part->name = (entries[i].name.starts_with('/') ? "" : "/") + PercentDecoded(entries[i].name);
    part->entry = i;
    if (entries[i].encrypted) throw PartError(part->name, "it is encrypted");
    if (!package.byName_.emplace(ascii::Lower(part->name), part.get()).second) {
      throw PackageError("it contains two parts with the name " + part->name);
    }
    package.parts_.push_back(std::move(part));
  }
  package.contentTypesChanged_ = package.changed_ = false;
  if (!package.Has(kContentTypes)) package.ThrowForeignFormat();
  InPart(kContentTypes, [&] { package.ParseContentTypes(package.Read(kContentTypes)); });
  return package;
}

void Package::ThrowForeignFormat() const {
  if (Has("/mimetype") && Read("/mimetype").starts_with("application/vnd.oasis.opendocument")) {
    throw OtherFormat("an OpenDocument file, such as .ods");
  }
  if (Has("/Index/Document.iwa") || Has("/Index.zip"))
    throw OtherFormat("a spreadsheet of Numbers (.numbers)");
  throw PackageError("it is not an Office document: it has no content types");
}

void Package::ParseContentTypes(std::string_view bytes) {
  contentTypes_ = std::make_unique<pugi::xml_document>();
  xml::Parse(*contentTypes_, bytes);
  overrides_.clear();
  defaults_.clear();
  pugi::xml_node types = xml::Root(*contentTypes_);
  for (const pugi::xml_node& type : xml::Children(types, "Override")) {
    // The first override of a part counts. The others are removed, so that none outlives the part.
    if (!overrides_.emplace(PartNameOf(type), type).second) types.remove_child(type);
  }
  for (const pugi::xml_node& type : xml::Children(types, "Default")) {
    defaults_.emplace(ascii::Lower(xml::Attribute(type, "Extension")), type);
  }
}

Package::Part* Package::Find(std::string_view part) const {
  const auto found = byName_.find(ascii::Lower(part));
  return found == byName_.end() ? nullptr : found->second;
}

const Package::Part& Package::Get(std::string_view part) const {
  const Part* found = Find(part);
  if (found == nullptr) throw PackageError("its part " + std::string(part) + " is missing");
  return *found;
}

Package::Part& Package::Put(std::string_view name, std::string bytes) {
  changed_ = true;
  relationships_.erase(ascii::Lower(name));
  Part* part = Find(name);
  if (part == nullptr) {
    part = parts_.emplace_back(std::make_unique<Part>()).get();
    part->name = name;
    byName_.emplace(ascii::Lower(name), part);
  }
  part->bytes = std::move(bytes);
  return *part;
}

bool Package::Has(std::string_view part) const { return Find(part) != nullptr; }

std::vector<std::string> Package::Parts() const {
  std::vector<std::string> names;
  for (const auto& part : parts_) names.push_back(part->name);
  return names;
}

std::string Package::ContentType(std::string_view part) const {
  const std::string key = ascii::Lower(part);
  auto type = overrides_.find(key);
  if (type == overrides_.end()) {
    type = defaults_.find(key.substr(key.rfind('.') + 1));
    if (type == defaults_.end()) return {};
  }
  return xml::Attribute(type->second, "ContentType");
}

namespace {

class NamedStream : public Archive::Stream {
 public:
  NamedStream(std::unique_ptr<Archive::Stream> inner, std::string part)
      : inner_(std::move(inner)), part_(std::move(part)) {}

  std::size_t Read(char* buffer, std::size_t size) override {
    return InPart(part_, [&] { return inner_->Read(buffer, size); });
  }

 private:
  std::unique_ptr<Archive::Stream> inner_;
  std::string part_;
};

void CheckSize(const ArchiveEntry& entry, const std::string& part, std::uint64_t limit) {
  const std::string size = "it inflates to " + std::to_string(entry.size) + " bytes, ";
  const bool bomb = entry.size > limits::kAnyRatio && entry.size / limits::kRatio > entry.compressedSize;
  if (bomb || entry.size > limits::kStreamedPart) {
    throw PartError(part, size + "more than any valid workbook needs");
  }
  if (entry.size > limit) {
    throw PartError(
        part, size + "more than the " + std::to_string(limit) + " bytes that Plotsmith can hold in memory");
  }
}

}  // namespace

std::unique_ptr<Archive::Stream> Package::Stream(std::string_view name) const {
  const Part& part = Get(name);
  if (part.bytes) return std::make_unique<MemoryStream>(*part.bytes);
  CheckSize(archive_->Entries()[*part.entry], part.name, limits::kStreamedPart);
  return InPart(part.name,
                [&] { return std::make_unique<NamedStream>(archive_->Open(*part.entry), part.name); });
}

std::string Package::Read(std::string_view name) const {
  const Part& part = Get(name);
  if (part.bytes) return *part.bytes;
  const ArchiveEntry& entry = archive_->Entries()[*part.entry];
  CheckSize(entry, part.name, limits::kHeldPart);
  std::string bytes(entry.size, '\0');
  const auto stream = Stream(name);
  std::size_t total = 0;
  while (const std::size_t count = stream->Read(bytes.data() + total, bytes.size() - total)) total += count;
  char beyond;  // Reading past the end checks the size and the checksum.
  stream->Read(&beyond, 1);
  return bytes;
}

void Package::Replace(std::string_view part, std::string bytes) {
  Get(part);
  Put(part, std::move(bytes));
}

void Package::Add(std::string_view part, std::string_view contentType, std::string bytes) {
  Put(part, std::move(bytes));
  SetContentType(part, contentType);
}

void Package::SetContentType(std::string_view part, std::string_view contentType) {
  if (ContentType(part) == contentType) return;
  pugi::xml_node& type = overrides_[ascii::Lower(part)];  // An element of a deleted part may still exist.
  if (!type) type = xml::AppendChild(xml::Root(*contentTypes_), "Override");
  xml::SetAttribute(type, "PartName", PercentEncoded(part));
  xml::SetAttribute(type, "ContentType", contentType);
  contentTypesChanged_ = true;
}

void Package::Remove(const std::string& part) {
  const std::string key = ascii::Lower(part);
  if (const auto type = overrides_.extract(key)) {
    xml::Root(*contentTypes_).remove_child(type.mapped());
    contentTypesChanged_ = true;
  }
  // A part that is later added with the same name gets its own relationships.
  const std::string links = RelationshipsPart(part);
  if (Has(links)) Remove(links);
  relationships_.erase(key);
  const Part* gone = Find(part);
  byName_.erase(key);
  std::erase_if(parts_, [&](const auto& other) { return other.get() == gone; });
  changed_ = true;
}

std::string Package::FreeName(std::string_view prefix, std::string_view suffix) const {
  for (int n = 1;; ++n) {
    std::string name = std::string(prefix) + std::to_string(n) + std::string(suffix);
    if (!Has(name)) return name;
  }
}

const std::vector<Relationship>& Package::Relationships(std::string_view part) const {
  const std::string rels = RelationshipsPart(part);
  const std::string key = ascii::Lower(rels);
  if (const auto known = relationships_.find(key); known != relationships_.end()) return known->second;
  std::vector<Relationship> list;
  pugi::xml_document document;
  if (Has(rels)) InPart(rels, [&] { xml::Parse(document, Read(rels)); });
  for (const pugi::xml_node& node : xml::Children(xml::Root(document), "Relationship")) {
    Relationship relationship;
    relationship.id = xml::Attribute(node, "Id");
    relationship.type = LastSegment(xml::Attribute(node, "Type"));
    relationship.external = xml::Attribute(node, "TargetMode") == "External";
    const std::string target = xml::Attribute(node, "Target");
    relationship.target = relationship.external ? target : ResolveTarget(part, target);
    const Part* known = relationship.external ? nullptr : Find(relationship.target);
    if (known != nullptr) relationship.target = known->name;
    list.push_back(std::move(relationship));
  }
  return relationships_.emplace(key, std::move(list)).first->second;
}

std::optional<Relationship> Package::FindRelationship(std::string_view part, std::string_view id) const {
  for (const Relationship& relationship : Relationships(part)) {
    if (relationship.id == id) return relationship;
  }
  return std::nullopt;
}

std::optional<Relationship> Package::FindRelationshipOfType(std::string_view part,
                                                            std::string_view type) const {
  for (const Relationship& relationship : Relationships(part)) {
    if (relationship.type == type && !relationship.external) return relationship;
  }
  return std::nullopt;
}

std::string Package::AddRelationship(std::string_view part, std::string_view typeUri,
                                     std::string_view target) {
  const std::string rels = RelationshipsPart(part);
  pugi::xml_document document;
  if (Has(rels)) {
    xml::Parse(document, Read(rels));
  } else {
    xml::Parse(document, std::string(kXmlDeclaration) + R"(<Relationships xmlns=")" +
                             std::string(kRelationshipsNamespace) + R"("/>)");
  }
  pugi::xml_node root = xml::Root(document);
  std::set<std::string> taken;
  for (const pugi::xml_node& node : xml::Children(root, "Relationship")) {
    taken.insert(ascii::Lower(xml::Attribute(node, "Id")));
  }
  std::string id = "rId1";
  for (int n = 2; taken.contains(ascii::Lower(id)); ++n) id = "rId" + std::to_string(n);
  pugi::xml_node node = xml::AppendChild(root, "Relationship");
  xml::SetAttribute(node, "Id", id);
  xml::SetAttribute(node, "Type", typeUri);
  xml::SetAttribute(node, "Target", RelativeTarget(part, target));
  Add(rels, kRelationshipsType, xml::Serialize(document));
  return id;
}

std::set<std::string> Package::Closure(const std::string& part) const {
  std::set<std::string> closure = {part};
  for (std::vector<std::string> open = {part}; !open.empty();) {
    const std::string source = std::move(open.back());
    open.pop_back();
    for (const Relationship& link : Relationships(source)) {
      if (link.external || !Has(link.target) || IsBookkeeping(link.target)) continue;
      if (closure.insert(link.target).second) open.push_back(link.target);
    }
  }
  return closure;
}

std::set<std::string> Package::OnlyThrough(const std::string& part) const {
  const std::set<std::string> closure = Closure(part);
  std::set<std::string> gone = closure;
  const auto keepTargetsOf = [&](const std::string& source) {
    for (const Relationship& link : Relationships(source)) {
      if (!gone.contains(link.target)) continue;
      for (const std::string& kept : Closure(link.target)) gone.erase(kept);
    }
  };
  keepTargetsOf("");
  for (const auto& links : parts_) {
    const std::string name = RelationshipsSource(links->name);
    const Part* const source = name.empty() ? nullptr : Find(name);
    if (source != nullptr && !IsBookkeeping(source->name) && !closure.contains(source->name)) {
      keepTargetsOf(source->name);
    }
  }
  return gone;
}

std::vector<std::string> Package::RemoveRelationship(std::string_view source, std::string_view id) {
  const auto link = FindRelationship(source, id);
  if (!link) return {};
  const std::string rels = RelationshipsPart(source);
  std::vector<Relationship>& known = relationships_.find(ascii::Lower(rels))->second;
  std::erase_if(known, [&](const Relationship& other) { return other.id == id; });
  if (known.empty()) {
    Remove(rels);
  } else {
    // A drawing can have thousands of relationships. They are changed as text and not read again, because
    // parsing them for each deleted chart would take long.
    std::vector<Relationship> others = std::move(known);
    std::string text = xml::ToUtf8(Read(rels));
    RemoveChildren(text, NextTag(text, 0)->span.end, [&](const XmlTag& tag) {
      return xml::LocalName(tag.name) == "Relationship" && AttributeIn(tag.attributes, "Id") == id;
    });
    Replace(rels, std::move(text));
    relationships_[ascii::Lower(rels)] = std::move(others);
  }
  if (link->external || !Has(link->target) || IsBookkeeping(link->target)) return {};
  std::set<std::string> gone;
  try {
    gone = OnlyThrough(link->target);
  } catch (const PackageError&) {
    return {};  // A part with unreadable relationships may refer to any part.
  }
  for (const std::string& part : gone) Remove(part);
  return {gone.begin(), gone.end()};
}

void Package::CheckUnchanged(const std::string& path) const {
  if (archive_ && IsSameFile(archive_->Path(), path)) {
    if (archive_->FileHasChanged()) throw PackageError("another program has changed it since it was read");
  } else if (copy_ && IsSameFile(copy_->path, path) && FileStamp::Of(path) != copy_->stamp) {
    throw PackageError("another program has changed it since it was saved");
  }
}

void Package::Save(const std::string& path) {
  AtomicFile file(path);
  Write(file.Descriptor());
  file.Flush();
  Commit(file, path);
}

/// Replaces the target of `file`, unless another program has changed it meanwhile. Windows can't replace an
/// open file. If the package is saved over its own file, it therefore closes that file and continues with the
/// new one, which has the parts in their present order.
void Package::Commit(AtomicFile& file, const std::string& path) {
  file.LockTarget();
  CheckUnchanged(path);
  if (!archive_ || !IsSameFile(archive_->Path(), path)) {
    Copy copy{path, std::nullopt};
    file.Commit();
    copy_.reset();
    try {
      copy.stamp = FileStamp::Of(path);
      copy_ = std::move(copy);
    } catch (const std::bad_alloc&) {
      // The copy is saved. Without its stamp, the next save doesn't notice a change by another program.
    }
    return;
  }
  archive_->Close();
  try {
    file.Commit();
  } catch (...) {
    Reopen(archive_);
    throw;
  }
  if (!Reopen(archive_)) return;  // The workbook is saved, but its unread parts can't be read any more.
  for (std::size_t i = 0; i < parts_.size(); ++i) parts_[i]->entry = i;
}

void Package::Save(std::ostream& out) {
  const ScratchFile scratch;
  Write(scratch.Descriptor());
  std::vector<char> block(kCopiedBlock);
  for (std::uint64_t position = 0;;) {
    const auto count = file_system::ReadAt(scratch.Descriptor(), block.data(), block.size(), position);
    if (count < 0) throw PackageError("its temporary file can't be read again");
    if (count == 0) break;
    out.write(block.data(), static_cast<std::streamsize>(count));
    position += static_cast<std::uint64_t>(count);
  }
}

void Package::Write(int descriptor) {
  if (contentTypesChanged_) Replace(kContentTypes, xml::Serialize(*contentTypes_));
  ArchiveWriter writer(descriptor);
  for (const auto& part : parts_) {
    if (!part->bytes) {
      writer.Copy(*archive_, *part->entry);
      continue;
    }
    const ArchiveEntry* const old = part->entry ? &archive_->Entries()[*part->entry] : nullptr;
    const bool compress = old == nullptr || old->method != 0;
    writer.Add(old == nullptr ? NewEntryName(part->name) : old->name, *part->bytes, compress);
  }
  if (archive_) writer.CopyComment(*archive_);
  writer.Finish();
}

}  // namespace plotsmith::xlsx
