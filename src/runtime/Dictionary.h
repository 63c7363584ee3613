#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

#include "runtime/Variant.h"

namespace plotsmith::runtime {

/// The class Scripting.Dictionary: keys with items, in insertion order. Keys are compared byte by byte.
class Dictionary {
 public:
  Dictionary() = default;

  /// A dictionary can be moved but not copied, because the index of a copy would refer to the original.
  ///@{
  Dictionary(Dictionary&&) = default;
  Dictionary& operator=(Dictionary&&) = default;
  ///@}

  /// A key with its item.
  struct Entry {
    std::string key;  ///< The key.
    Variant item;     ///< The item; Empty until it is set.
  };

  /// The number of keys, including those that Item added.
  std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }
  /// Returns true if the key exists. Unlike Item, this does not add it.
  bool Exists(std::string_view key) const { return index_.contains(key); }

  /// Adds a key with its item. Raises error 457 if the key exists.
  void Add(std::string_view key, Variant item);

  /// Returns the item of a key, for reading or assignment. If the key doesn't exist, it is added with an
  /// Empty item, also by a read. The pivot relies on this.
  Variant& Item(std::string_view key);

  /// Iterates over the entries in insertion order.
  ///@{
  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }
  ///@}

 private:
  std::deque<Entry> entries_;  // A deque keeps its elements in place, so the views in the index stay valid.
  std::unordered_map<std::string_view, Entry*> index_;
};

}  // namespace plotsmith::runtime
