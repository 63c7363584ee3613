// Changes of inputs that keep their outer form. Most random changes of bytes only show that XML isn't
// well-formed, or that a checksum is wrong. These changes reach the code behind that.

#include "fuzz/Mutations.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <sstream>
#include <utility>
#include <vector>
#include <zip.h>

namespace plotsmith::fuzz {
namespace {

/// Values at the limits of the types in OOXML.
constexpr const char* kValues[] = {"",
                                   "0",
                                   "1",
                                   "-1",
                                   "0.5",
                                   "255",
                                   "65536",
                                   "1048577",
                                   "2147483647",
                                   "-2147483648",
                                   "4294967296",
                                   "99999999999999999999",
                                   "1E308",
                                   "-1E-300",
                                   "NaN",
                                   "INF",
                                   "true",
                                   "none",
                                   "rId1",
                                   "rId2",
                                   "Sheet1!$A$1:$XFD$1048576",
                                   "#REF!",
                                   "FFFFFF",
                                   "&lt;&#10;",
                                   "../../xl/workbook.xml"};

template <class List>
auto& OneOf(List& list, Random& random) {
  return list[random() % std::size(list)];
}

bool Parse(pugi::xml_document& document, const std::string& xml) {
  return document.load_buffer(xml.data(), xml.size(), pugi::parse_full | pugi::parse_ws_pcdata).status ==
             pugi::status_ok &&
         document.document_element();
}

std::string Serialized(const pugi::xml_document& document) {
  std::ostringstream out;
  document.save(out, "", pugi::format_raw | pugi::format_no_declaration);
  return std::move(out).str();
}

std::vector<pugi::xml_node> Elements(const pugi::xml_document& document) {
  struct Walker : pugi::xml_tree_walker {
    std::vector<pugi::xml_node> elements;
    bool for_each(pugi::xml_node& node) override {
      if (node.type() == pugi::node_element) elements.push_back(node);
      return true;
    }
  } walker;
  pugi::xml_node(document).traverse(walker);
  return std::move(walker.elements);
}

pugi::xml_attribute AnyAttribute(const pugi::xml_node& element, Random& random) {
  std::vector<pugi::xml_attribute> attributes(element.attributes_begin(), element.attributes_end());
  return attributes.empty() ? pugi::xml_attribute() : OneOf(attributes, random);
}

std::string OtherValue(const std::string& value, const std::string& elsewhere, Random& random,
                       const MutateBytes& mutateBytes) {
  switch (random() % 3) {
    case 0:
      return OneOf(kValues, random);
    case 1:
      return elsewhere;
    default:
      return mutateBytes(value);
  }
}

/// Inserts a copy of `element` before, after or in another one.
void Insert(const pugi::xml_node& element, pugi::xml_node place, Random& random) {
  const bool root = place.parent() == place.root();
  switch (random() % (root ? 2 : 4)) {
    case 0:
      place.append_copy(element);
      break;
    case 1:
      place.prepend_copy(element);
      break;
    case 2:
      place.parent().insert_copy_after(element, place);
      break;
    default:
      place.parent().insert_copy_before(element, place);
      place.parent().remove_child(place);
  }
}

/// Returns a file of an archive, or nothing if it can't be read or is too large for a fuzzer.
std::optional<std::string> ReadFile(zip_t* archive, zip_uint64_t index) {
  zip_stat_t stat;
  if (zip_stat_index(archive, index, 0, &stat) != 0 || stat.size > 1024 * 1024) return std::nullopt;
  const std::unique_ptr<zip_file_t, decltype(&zip_fclose)> file(zip_fopen_index(archive, index, 0),
                                                                zip_fclose);
  std::string bytes(stat.size, '\0');
  if (!file || zip_fread(file.get(), bytes.data(), bytes.size()) != static_cast<zip_int64_t>(bytes.size())) {
    return std::nullopt;
  }
  return bytes;
}

/// Returns what was written to a source, or an empty text if it can't be read.
std::string Content(zip_source_t* source) {
  zip_stat_t stat;
  if (zip_source_stat(source, &stat) != 0 || zip_source_open(source) != 0) return "";
  std::string bytes(stat.size, '\0');
  const auto count = zip_source_read(source, bytes.data(), bytes.size());
  zip_source_close(source);
  bytes.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
  return bytes;
}

}  // namespace

std::string MutateXml(const std::string& xml, Random& random, const MutateBytes& mutateBytes) {
  pugi::xml_document document;
  if (!Parse(document, xml)) return "";
  auto elements = Elements(document);
  auto element = OneOf(elements, random);
  const auto other = OneOf(elements, random);
  auto attribute = AnyAttribute(element, random);
  switch (random() % 8) {
    case 0:
      if (element.parent() != document) element.parent().remove_child(element);
      break;
    case 1:
      element.remove_attribute(attribute);
      break;
    case 2:
      element.set_name(other.name());
      break;
    case 3:
      element.text().set(OtherValue(element.text().get(), other.text().get(), random, mutateBytes).c_str());
      break;
    case 4:
    case 5:
      attribute.set_value(
          OtherValue(attribute.value(), AnyAttribute(other, random).value(), random, mutateBytes).c_str());
      break;
    default:
      Insert(other, element, random);
  }
  return Serialized(document);
}

std::string CrossXml(const std::string& xml, const std::string& other, Random& random) {
  pugi::xml_document document;
  pugi::xml_document second;
  if (!Parse(document, xml) || !Parse(second, other)) return "";
  auto places = Elements(document);
  auto elements = Elements(second);
  Insert(OneOf(elements, random), OneOf(places, random), random);
  return Serialized(document);
}

std::string MutateZip(const std::string& zip, Random& random, const MutateBytes& mutateBytes) {
  // libzip frees a buffer that it has replaced, even if the buffer isn't its own. So it gets a copy.
  void* const copy = std::malloc(zip.size());
  if (copy == nullptr) return "";
  const std::unique_ptr<zip_source_t, decltype(&zip_source_free)> source(
      zip_source_buffer_create(std::memcpy(copy, zip.data(), zip.size()), zip.size(), 1, nullptr),
      zip_source_free);
  std::unique_ptr<zip_t, decltype(&zip_discard)> archive(zip_open_from_source(source.get(), 0, nullptr),
                                                         zip_discard);
  if (!archive) return "";
  zip_source_keep(source.get());  // the archive releases its own reference when it is closed
  const auto files = static_cast<zip_uint64_t>(zip_get_num_entries(archive.get(), 0));
  if (files == 0) return "";
  const zip_uint64_t index = random() % files;
  const auto bytes = ReadFile(archive.get(), index);
  if (!bytes) return "";
  std::string changed = random() % 3 == 0 ? "" : MutateXml(*bytes, random, mutateBytes);
  if (changed.empty()) changed = mutateBytes(*bytes);
  zip_source_t* const replacement = zip_source_buffer(archive.get(), changed.data(), changed.size(), 0);
  if (zip_file_replace(archive.get(), index, replacement, 0) != 0) {
    zip_source_free(replacement);
    return "";
  }
  if (zip_close(archive.get()) != 0) return "";
  archive.release();
  return Content(source.get());
}

}  // namespace plotsmith::fuzz
