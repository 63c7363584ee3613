#include "xlsx/book/BookContext.h"

#include "xlsx/sheet/SharedStrings.h"

namespace plotsmith::xlsx {

void BookContext::LoadContext() {
  part_.Load(package_);
  dates_ = part_.Dates();
  const auto styles = package_.FindRelationshipOfType(part_.Name(), "styles");
  if (styles && package_.Has(styles->target)) {
    InPart(styles->target, [&] { styles_ = std::make_unique<xlsx::Styles>(package_.Read(styles->target)); });
  } else {
    styles_ = std::make_unique<xlsx::Styles>("", IsStrict());
  }
}

void BookContext::WriteStyles() {
  if (!styles_->Changed()) return;
  const auto link = package_.FindRelationshipOfType(part_.Name(), "styles");
  if (link && package_.Has(link->target)) {
    package_.Replace(link->target, styles_->Serialize());
    return;
  }
  const std::string part = Folder() + "styles.xml";
  package_.Add(part, content_type::kStyles, styles_->Serialize());
  if (!link) package_.AddRelationship(part_.Name(), Vocabulary().RelationshipType("styles"), part);
}

const TextPool& BookContext::SharedStrings() {
  if (!sharedStrings_) {
    TextPool strings;
    Guarded([&] {
      const auto link = package_.FindRelationshipOfType(part_.Name(), "sharedStrings");
      if (!link || !package_.Has(link->target)) return;
      const auto stream = package_.Stream(link->target);
      InPart(link->target, [&] { ReadSharedStrings(*stream, strings); });
    });
    sharedStrings_ = std::move(strings);
  }
  return *sharedStrings_;
}

}  // namespace plotsmith::xlsx
