#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"

namespace plotsmith::forms {

/// The base class of combo boxes and list boxes: entries, of which one can be the current entry.
class EntryList : public FontControl {
 public:
  /// Makes an empty list. See Control for the parameters.
  EntryList(Form& form, const char* name, Control* container) : FontControl(form, name, container) {
    SetBackColor(kWhite);
  }

  /// The number of entries.
  std::int32_t ListCount() const { return static_cast<std::int32_t>(list_.size()); }
  /// Returns the text of an entry, counted from 0. It is empty if the index is out of range.
  std::string List(std::int32_t index) const;
  /// The index of the current entry, counted from 0, or -1 if there is none.
  std::int32_t ListIndex() const { return listIndex_; }
  /// Sets the current entry; -1 means none. Raises Click if it changes. Raises error 380 if the index is out
  /// of range.
  void SetListIndex(std::int32_t index);
  /// Adds an entry at the end. Raises no event.
  virtual void AddItem(std::string_view text);
  /// Removes all entries. Raises no event.
  virtual void Clear();

  /// Raised when the current entry or the selection changes.
  Event Click;

 protected:
  /// Makes an entry the current one. `index` is in range.
  virtual void ShowEntry(std::int32_t index) { listIndex_ = index; }
  const char* KindText() const override { return "list"; }

  std::vector<std::string> list_;  ///< The texts of the entries.
  std::int32_t listIndex_ = -1;    ///< The index of the current entry, from 0; -1 if there is none.
};

/// Whether the user can type into a combo box.
enum class ComboStyle {
  kDropDownCombo,  ///< The user can select an entry or type a text.
  kDropDownList,   ///< The user can only select an entry.
};

/// A combo box: a text box with a drop-down list.
class ComboBox : public EntryList {
 public:
  /// Makes an empty combo box. See Control for the other parameters.
  ComboBox(Form& form, const char* name, Control* container, ComboStyle style)
      : EntryList(form, name, container), style_(style) {}
  const char* TypeName() const override { return "ComboBox"; }

  /// The style, which can't be changed.
  ComboStyle Style() const { return style_; }
  /// The text in the box: the text of the current entry, or the typed text.
  std::string Text() const;
  /// Sets the text. Raises no event. Raises error 383 if the style doesn't allow typing.
  void SetText(std::string_view value);
  void Clear() override;

  /// Handles the selection of an entry by the user. `index` counts from 0. Raises Click, also for the current
  /// entry. Returns false if the user can't use the control.
  bool UserChoose(std::int32_t index);
  /// Returns the reason why the user can't type the text, as the end of a sentence, or an empty text if the
  /// user can.
  std::string ObstacleTo(std::string_view text) const;
  /// Handles typing by the user, which replaces the text. Returns false if the user can't type it.
  bool UserType(std::string_view text);

 protected:
  void ShowEntry(std::int32_t index) override;

 private:
  ComboStyle style_;
  std::string text_;  ///< The text of a combo box with typing.
};

/// Whether several entries of a list box, or rows of a grid, can be selected.
enum class MultiSelect {
  kNone,      ///< Only one.
  kExtended,  ///< Several, with Shift and Control.
};

/// A list box.
class ListBox : public EntryList {
 public:
  /// Makes an empty list box. See Control for the other parameters.
  ListBox(Form& form, const char* name, Control* container, forms::MultiSelect multiSelect)
      : EntryList(form, name, container), multiSelect_(multiSelect) {}
  const char* TypeName() const override { return "ListBox"; }

  /// Whether several entries can be selected. This can't be changed.
  forms::MultiSelect MultiSelect() const { return multiSelect_; }
  /// The text of the current entry, or empty if there is none.
  std::string Text() const { return List(ListIndex()); }
  /// Returns true if the entry is selected. `index` counts from 0. Raises error 380 if it is out of range.
  bool Selected(std::int32_t index) const;
  /// Selects or deselects an entry. Raises no event.
  void SetSelected(std::int32_t index, bool value);
  /// The number of selected entries.
  std::int32_t SelCount() const;
  void AddItem(std::string_view text) override;
  void Clear() override;

  /// Handles a selection by the user: exactly these entries, counted from 0. Raises Click once. Returns false
  /// if the user can't use the control.
  bool UserSelect(const std::vector<std::int32_t>& indices);

 protected:
  void ShowEntry(std::int32_t index) override;

 private:
  void CheckIndex(std::int32_t index) const;

  forms::MultiSelect multiSelect_;
  std::vector<bool> selected_;
};

}  // namespace plotsmith::forms
