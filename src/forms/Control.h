#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "forms/Color.h"
#include "forms/Font.h"

/// The model of dialogs: forms, their controls, and the loop that runs them. It knows no toolkit. Members
/// have the names of Visual Basic's forms. A control holds its state. To set a property raises the control's
/// event, whether a page sets it or a hand; a view only shows the state and reports what hands do.
namespace plotsmith::forms {

class Form;

/// What a control tells its form: a procedure of the page, or nothing.
using Event = std::function<void()>;

/// Where a control is on its form, in points from the corner of its container.
struct Place {
  double Left = 0, Top = 0, Width = 0, Height = 0;
};

/// What all controls have in common. A control belongs to one form for as long as it lives, and counts its
/// own changes, so that a view knows what to draw anew.
class Control {
 public:
  /// `container` is the frame that holds the control; a null pointer is the form itself.
  Control(Form& form, const char* name, Control* container);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  /// The name, which the members of a control array have in common.
  const std::string& Name() const { return name_; }
  /// The place in a control array, from 0; absent for a control that is in none.
  std::optional<std::int32_t> Index() const { return index_; }
  /// The name with the index of an array: "optType(1)".
  std::string FullName() const;
  /// The class, as Visual Basic's TypeName tells it.
  virtual const char* TypeName() const = 0;
  /// The frame that holds the control; null where the form does.
  Control* Container() const { return container_; }
  /// The form that the control is on.
  Form& Parent() const { return form_; }

  /// Whether a hand can use the control.
  ///@{
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool value);
  ///@}
  bool Visible() const { return visible_; }
  void SetVisible(bool value);

  Color BackColor() const { return backColor_; }
  void SetBackColor(Color value);

  /// Error 438 for a control without a font, such as a picture.
  virtual forms::Font& Font();

  const forms::Place& Place() const { return place_; }
  void SetPlace(const forms::Place& value);

  /// What a screen reader says: what was set, else the control's caption, else that of its frame and the
  /// control's kind.
  ///@{
  std::string AccessibleName() const;
  void SetAccessibleName(std::string value);
  ///@}
  /// What a screen reader says behind the name: which frame the control is in, unless its name says so.
  std::string AccessibleDescription() const;

  /// Moves the focus here: the control that had it raises Validate, then this one raises GotFocus. Error 5 if
  /// the control is off or hidden or takes no focus.
  void SetFocus();

  Event GotFocus;
  Event Validate;  ///< the focus leaves the control for another one

  /// Why a hand can't use the control at present, as the end of a sentence ("is off"); empty if it can.
  std::string Obstacle() const;
  /// A hand moves the focus here. Like all members that begin with User it answers false, and does nothing,
  /// where a hand can't use the control.
  bool UserFocus();

  /// Grows with each change of a property.
  std::uint64_t Changes() const { return changes_; }

 protected:
  void Changed() { ++changes_; }
  /// What is written on the control; empty where nothing is.
  virtual std::string CaptionText() const { return {}; }
  /// The kind in plain words, for AccessibleName.
  virtual const char* KindText() const { return ""; }
  /// Whether the control can have the focus at all.
  virtual bool TakesFocus() const { return true; }
  /// Gives the focus to the control for a gesture; false where a hand can't use it.
  bool Reach();
  void SetIndex(std::int32_t index) { index_ = index; }

  static void Raise(const Event& event) {
    if (event) event();
  }

 private:
  friend class Form;

  Form& form_;
  std::string name_;
  std::optional<std::int32_t> index_;
  Control* container_;
  bool enabled_ = true;
  bool visible_ = true;
  Color backColor_ = kButtonFace;
  forms::Place place_;
  std::string accessibleName_;
  std::uint64_t changes_ = 0;
};

/// A control with a font.
class FontControl : public Control {
 public:
  using Control::Control;
  forms::Font& Font() override { return font_; }

 private:
  forms::Font font_;
};

/// A control that shows a fixed text. "&" marks the letter that goes to the control together with Alt.
class CaptionControl : public FontControl {
 public:
  CaptionControl(Form& form, const char* name, Control* container, std::string caption)
      : FontControl(form, name, container), caption_(std::move(caption)) {}

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);

 protected:
  std::string CaptionText() const override { return caption_; }

 private:
  std::string caption_;
};

}  // namespace plotsmith::forms
