#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

#include "runtime/Variant.h"

namespace plotsmith::runtime {

/// Scripting.Dictionary: keys in order of addition, compared byte by byte.
class Dictionary {
 public:
  Dictionary() = default;

  /// Moves only: a copy's index would lead into the original.
  ///@{
  Dictionary(Dictionary&&) = default;
  Dictionary& operator=(Dictionary&&) = default;
  ///@}

  /// A key with its item.
  struct Entry {
    std::string key;  ///< as it was first given
    Variant item;     ///< Empty until it is set
  };

  /// With the keys that Item made.
  std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }
  /// Other than Item, makes no key.
  bool Exists(std::string_view key) const { return index_.contains(key); }

  /// Error 457 if the key is taken.
  void Add(std::string_view key, Variant item);

  /// The item of a key, to read or to set. To name a key that isn't there makes it, with an Empty item: reads
  /// leave such keys behind, and the pivot counts on that.
  Variant& Item(std::string_view key);

  /// Key and item together, in order of addition.
  ///@{
  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }
  ///@}

 private:
  std::deque<Entry> entries_;  // a deque, so that the views in the index stay good
  std::unordered_map<std::string_view, Entry*> index_;
};

}  // namespace plotsmith::runtime
