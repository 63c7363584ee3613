#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"

namespace plotsmith::runtime {

/// The class Collection of the language: items in insertion order, each with a unique key. Keys ignore case.
template <class T>
class Collection {
 public:
  /// The number of items.
  std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }

  /// Adds an item. Raises error 457 if the key exists.
  void Add(T item, std::string_view key) {
    std::string upper = UCase(key);
    if (index_.contains(upper)) throw RuntimeError(error::kKeyExists);
    items_.push_back(std::move(item));
    index_.emplace(std::move(upper), items_.size() - 1);
  }

  /// Returns the item of a key. Raises error 5 if there is no such key. The reference is valid until an item
  /// is added or removed.
  ///@{
  T& Item(std::string_view key) { return items_[Position(key)]; }
  const T& Item(std::string_view key) const { return items_[Position(key)]; }
  ///@}

  /// Removes the item of a key. Raises error 5 if there is no such key.
  void Remove(std::string_view key) {
    const std::size_t position = Position(key);
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(position));
    index_.erase(UCase(key));
    for (auto& [text, other] : index_) {
      if (other > position) --other;
    }
  }

  /// Iterates over the items in insertion order, without their keys.
  ///@{
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  ///@}

 private:
  std::size_t Position(std::string_view key) const {
    const auto found = index_.find(UCase(key));
    if (found == index_.end()) throw RuntimeError(error::kInvalidCall);
    return found->second;
  }

  std::vector<T> items_;
  std::unordered_map<std::string, std::size_t> index_;
};

}  // namespace plotsmith::runtime
