#include "runtime/Dictionary.h"

#include "runtime/RuntimeError.h"

namespace plotsmith::runtime {

void Dictionary::Add(std::string_view key, Variant item) {
  if (Exists(key)) throw RuntimeError(error::kKeyExists);
  Item(key) = std::move(item);
}

Variant& Dictionary::Item(std::string_view key) {
  if (const auto found = index_.find(key); found != index_.end()) return found->second->item;
  Entry& entry = entries_.emplace_back(Entry{std::string(key), Variant()});
  index_.emplace(entry.key, &entry);
  return entry.item;
}

}  // namespace plotsmith::runtime
