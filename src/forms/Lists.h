#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"

namespace plotsmith::forms {

/// What a combo box and a list box have in common: entries, of which one may be the current one.
class EntryList : public FontControl {
 public:
  EntryList(Form& form, const char* name, Control* container) : FontControl(form, name, container) {
    SetBackColor(kWhite);
  }

  std::int32_t ListCount() const { return static_cast<std::int32_t>(list_.size()); }
  /// The text of an entry, from 0; empty outside of the list.
  std::string List(std::int32_t index) const;
  /// From 0; -1 while no entry is the current one.
  std::int32_t ListIndex() const { return listIndex_; }
  /// Raises Click where the entry is another one than before, for -1 as well. Error 380 beyond the list.
  void SetListIndex(std::int32_t index);
  /// Puts an entry before the one at `at`, or at the end. The current entry stays the same one. Raises
  /// nothing.
  virtual void AddItem(std::string_view text, std::optional<std::int32_t> at = std::nullopt);
  /// Takes all entries away. Raises nothing.
  virtual void Clear();

  Event Click;

 protected:
  /// The entry becomes the current one; `index` is in the list.
  virtual void ShowEntry(std::int32_t index) { listIndex_ = index; }
  const char* KindText() const override { return "list"; }

  std::vector<std::string> list_;
  std::int32_t listIndex_ = -1;
};

/// What can be done to the text of a combo box.
enum class ComboStyle {
  kDropDownCombo,  ///< it can be typed too
  kDropDownList,   ///< it is one of the entries
};

/// A list that opens from a box.
class ComboBox : public EntryList {
 public:
  ComboBox(Form& form, const char* name, Control* container, ComboStyle style)
      : EntryList(form, name, container), style_(style) {}
  const char* TypeName() const override { return "ComboBox"; }

  ComboStyle Style() const { return style_; }
  /// The text in the box: that of the current entry, or what was typed.
  std::string Text() const;
  /// Raises nothing. Error 383 where the text can't be typed.
  void SetText(std::string_view value);
  void Clear() override;

  /// Chooses an entry, from 0; raises Click, for the entry that is the current one as well.
  bool UserChoose(std::int32_t index);
  /// Why a hand can't type the text, as the end of a sentence; empty if it can.
  std::string ObstacleTo(std::string_view text) const;
  /// Types over the text.
  bool UserType(std::string_view text);

 protected:
  void ShowEntry(std::int32_t index) override;

 private:
  ComboStyle style_;
  std::string text_;  ///< of a box that can be typed into
};

/// How many entries of a list box, or rows of a grid, can be selected at once.
enum class MultiSelect {
  kNone,      ///< one
  kExtended,  ///< several, with Shift and Control
};

/// A list that is open.
class ListBox : public EntryList {
 public:
  ListBox(Form& form, const char* name, Control* container, forms::MultiSelect multiSelect)
      : EntryList(form, name, container), multiSelect_(multiSelect) {}
  const char* TypeName() const override { return "ListBox"; }

  forms::MultiSelect MultiSelect() const { return multiSelect_; }
  /// The current entry's text; empty without one.
  std::string Text() const { return List(ListIndex()); }
  /// Whether the entry is selected; from 0. Error 380 outside of the list.
  bool Selected(std::int32_t index) const;
  /// Raises nothing.
  void SetSelected(std::int32_t index, bool value);
  std::int32_t SelCount() const;
  void AddItem(std::string_view text, std::optional<std::int32_t> at = std::nullopt) override;
  void Clear() override;

  /// Selects these entries, from 0, and no others; raises Click once.
  bool UserSelect(const std::vector<std::int32_t>& indices);

 protected:
  void ShowEntry(std::int32_t index) override;

 private:
  void CheckIndex(std::int32_t index) const;

  forms::MultiSelect multiSelect_;
  std::vector<bool> selected_;
};

}  // namespace plotsmith::forms
