#include "xlsx/DefinedNames.h"

#include <algorithm>
#include <string>
#include <vector>

#include "host/excel/DefinedName.h"
#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "xlsx/Range.h"
#include "xlsx/Worksheet.h"
#include "xlsx/base/Errors.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::RuntimeError;

namespace {

class BookName final : public excel::DefinedName {
 public:
  BookName(Workbook& book, NameEntry entry) : book_(book), entry_(std::move(entry)) {
    // Built-in names have a prefix in the file that Excel doesn't show.
    constexpr std::string_view kBuiltin = "_xlnm.";
    name_ = entry_.name.starts_with(kBuiltin) ? entry_.name.substr(kBuiltin.size()) : entry_.name;
    if (entry_.sheet && *entry_.sheet < book_.Tabs().All().size()) {
      name_ = QuotedSheetName(book_.Tabs().All()[*entry_.sheet]->name) + "!" + name_;
    }
  }

  std::string Name() override { return name_; }
  std::string RefersTo() override { return "=" + entry_.definition; }

  /// Raises error 1004 for a name whose formula computes its range, because this host doesn't evaluate
  /// formulas.
  Ref<excel::Range> RefersToRange() override {
    // If a name has several areas, the first one counts.
    std::string_view definition = entry_.definition;
    bool quoted = false;
    for (std::size_t i = 0; i < definition.size(); ++i) {
      if (definition[i] == '\'') quoted = !quoted;
      if (definition[i] == ',' && !quoted) definition = definition.substr(0, i);
    }
    const auto range = ParseSheetRange(definition);
    const auto sheet = range ? book_.FindWorksheet(range->sheet) : nullptr;
    if (!sheet) {
      throw MethodFailed("RefersToRange", "Name");
    }
    return MakeRange(sheet, range->range);
  }

 private:
  Workbook& book_;
  NameEntry entry_;
  std::string name_;
};

class BookNames final : public excel::Names {
 public:
  explicit BookNames(Workbook& book) {
    for (const NameEntry& entry : book.DefinedNames().All()) {
      auto name = std::make_shared<BookName>(book, entry);
      std::string key = runtime::UCase(name->Name());
      names_.emplace_back(std::move(key), std::move(name));
    }
    std::stable_sort(names_.begin(), names_.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
  }

  std::int32_t Count() override { return static_cast<std::int32_t>(names_.size()); }
  Ref<excel::DefinedName> Item(std::int32_t index) override {
    if (index < 1 || index > Count()) throw RuntimeError(runtime::error::kApplication);
    return names_[static_cast<std::size_t>(index) - 1].second;
  }
  Ref<excel::DefinedName> Item(std::string_view name) override {
    const std::string key = runtime::UCase(name);
    const auto found =
        std::lower_bound(names_.begin(), names_.end(), key,
                         [](const auto& entry, const std::string& k) { return entry.first < k; });
    if (found == names_.end() || found->first != key) throw RuntimeError(runtime::error::kApplication);
    return found->second;
  }

 private:
  std::vector<std::pair<std::string, std::shared_ptr<BookName>>> names_;  // sorted by the upper-cased name
};

}  // namespace

Ref<excel::Names> MakeNames(Workbook& book) { return std::make_shared<BookNames>(book); }

}  // namespace plotsmith::xlsx
