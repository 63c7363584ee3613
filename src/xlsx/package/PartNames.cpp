#include "xlsx/package/PartNames.h"

#include <algorithm>
#include <vector>

#include "runtime/Ascii.h"

namespace plotsmith::xlsx {
namespace {

/// Returns the folder of a part, including its slash at the end.
std::string_view Folder(std::string_view part) { return part.substr(0, part.rfind('/') + 1); }

bool EndsWithIgnoringCase(std::string_view text, std::string_view lower) {
  return text.size() >= lower.size() && ascii::Lower(text.substr(text.size() - lower.size())) == lower;
}

}  // namespace

std::string RelationshipsPart(std::string_view part) {
  if (part.empty()) return "/_rels/.rels";
  const std::string_view folder = Folder(part);
  return std::string(folder) + "_rels/" + std::string(part.substr(folder.size())) + ".rels";
}

std::string RelationshipsSource(std::string_view part) {
  constexpr std::string_view kFolder = "_rels/", kExtension = ".rels";
  if (!EndsWithIgnoringCase(part, kExtension)) return {};
  std::string_view folder = Folder(part);
  if (!EndsWithIgnoringCase(folder, "/_rels/")) return {};
  std::string_view name = part.substr(folder.size());
  folder.remove_suffix(kFolder.size());
  name.remove_suffix(kExtension.size());
  return std::string(folder) + std::string(name);
}

std::string PercentDecoded(std::string_view coded) {
  const auto digit = [](char c) -> int {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
  };
  std::string text;
  for (std::size_t i = 0; i < coded.size(); ++i) {
    if (coded[i] == '%' && i + 2 < coded.size() && digit(coded[i + 1]) >= 0 && digit(coded[i + 2]) >= 0) {
      text += static_cast<char>(digit(coded[i + 1]) * 16 + digit(coded[i + 2]));
      i += 2;
    } else {
      text += coded[i];
    }
  }
  return text;
}

std::string PercentEncoded(std::string_view name) {
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~!$&'()*+,;=:@/";
  std::string text;
  for (const char c : name) {
    if (kPlain.find(c) != std::string_view::npos) {
      text += c;
    } else {
      constexpr std::string_view kDigits = "0123456789ABCDEF";
      const auto byte = static_cast<unsigned char>(c);
      text.append({'%', kDigits[byte >> 4], kDigits[byte & 15]});
    }
  }
  return text;
}

std::string ResolveTarget(std::string_view source, std::string_view target) {
  target = target.substr(0, target.find('#'));
  std::string path = PercentDecoded(target);
  std::replace(path.begin(), path.end(), '\\', '/');
  if (!path.starts_with('/')) path.insert(0, source.empty() ? "/" : Folder(source));
  std::vector<std::string_view> segments;
  for (std::string_view rest = path; !rest.empty();) {
    rest.remove_prefix(1);  // the slash
    const std::string_view segment = rest.substr(0, rest.find('/'));
    rest.remove_prefix(segment.size());
    if (segment == "..") {
      if (segments.empty()) return {};
      segments.pop_back();
    } else if (segment != "." && !segment.empty()) {
      segments.push_back(segment);
    }
  }
  std::string resolved;
  for (const std::string_view segment : segments) resolved.append("/").append(segment);
  return resolved;
}

std::string RelativeTarget(std::string_view source, std::string_view target) {
  std::string_view folder = source.empty() ? std::string_view("/") : Folder(source);
  std::string up;
  while (!target.starts_with(folder)) {
    folder = Folder(folder.substr(0, folder.size() - 1));
    up += "../";
  }
  return up + PercentEncoded(target.substr(folder.size()));
}

}  // namespace plotsmith::xlsx
