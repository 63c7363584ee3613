#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_map>
#include <utility>

#include "render/Drawing.h"

namespace plotsmith::render {

/// What is known about fonts. An `Entry` has a member `texts`, a map of texts that were measured or laid out
/// in its font. The number of texts of all fonts together is limited.
template <class Entry>
class FontCache {
 public:
  /// Returns the entry of a font, which `load` makes at the first call. It exists as long as the cache.
  template <class Load>
  Entry& Find(const Font& font, const Load& load) {
    if (recent_ != nullptr && recent_->first == font) return recent_->second;
    auto found = entries_.find(font);
    if (found == entries_.end()) found = entries_.emplace(font, load()).first;
    recent_ = &*found;
    return recent_->second;
  }
  /// Call this before a text is added to an entry. Drops all texts if there are too many.
  void MakeRoom() {
    constexpr std::size_t kMostTexts = 8000;
    if (++texts_ <= kMostTexts) return;
    for (auto& [font, entry] : entries_) entry.texts.clear();
    texts_ = 1;
  }

 private:
  struct Hash {
    std::size_t operator()(const Font& font) const {
      const std::size_t look = (font.bold ? 1u : 0u) + (font.italic ? 2u : 0u) + (font.underline ? 4u : 0u);
      return std::hash<std::string>()(font.family) ^ (std::hash<double>()(font.size) * 8 + look);
    }
  };

  std::unordered_map<Font, Entry, Hash> entries_;
  std::pair<const Font, Entry>* recent_ = nullptr;
  std::size_t texts_ = 0;
};

}  // namespace plotsmith::render
