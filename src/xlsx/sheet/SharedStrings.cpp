#include "xlsx/sheet/SharedStrings.h"

#include "xlsx/base/Limits.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/XString.h"
#include "xlsx/package/XmlStream.h"

namespace plotsmith::xlsx {

void ReadSharedStrings(Archive::Stream& source, TextPool& strings) {
  using Kind = XmlStream::Kind;
  XmlStream stream(source);
  std::string item, text;
  std::uint64_t bytes = 0;
  for (;;) {
    const XmlStream::Tag tag = stream.Next();
    if (tag.kind == Kind::kEndOfInput) break;
    if (tag.kind == Kind::kStart && tag.name == "si") {
      item.clear();
    } else if (tag.kind == Kind::kStart && tag.name == "rPh") {
      stream.SkipElement();
    } else if (tag.kind == Kind::kStart && tag.name == "t") {
      text.clear();
      stream.ReadText(text);
      item += DecodeXString(text);
      if (bytes + item.size() > limits::kHeldPart) throw PackageError("its texts are too long");
    } else if (tag.name == "si") {
      if (tag.kind == Kind::kEmpty) item.clear();
      bytes += item.size();
      if (strings.Count() >= limits::kSharedStrings)
        throw PackageError("it has more texts than Plotsmith supports");
      strings.Add(item);
    }
  }
}

}  // namespace plotsmith::xlsx
